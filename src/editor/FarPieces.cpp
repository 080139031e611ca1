#include "editor/FarPieces.h"

#include "widgets/box/BoxText.h"
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextCursor>

namespace ORVTListview {
namespace {

constexpr qint32 farApart = 0x4000; // characters

// From the back, as the places before what is replaced stay right.
qsizetype firstNear(const QList<TextPiece> &pieces, qsizetype last)
{
    while (last > 0 && pieces[last].start - pieces[last - 1].end() < farApart)
        --last;
    return last;
}

// Where a piece ends, followed as the text changes.
QTextCursor endOf(const RichTextBox &box, const TextPiece &piece)
{
    QTextCursor end(box.document());
    end.setPosition(BoxText::of(*box.document()).toDocument(piece.end()));
    return end;
}

} // namespace

bool replaceFarPieces(RichTextBox &box, const QList<TextPiece> &pieces,
                      const QList<ColouredText> &texts, const FinishPieces &finish)
{
    const RichTextBox::Changing changing(box);
    const BoxText &text = BoxText::of(*box.document());
    quint64 changes = text.changeCount();
    qint32 fromEnd = 0; // of the caret
    for (qsizetype end = pieces.size(); end > 0;) {
        const qsizetype first = firstNear(pieces, end - 1);
        const qsizetype count = end - first;
        const QTextCursor next = first > 0 ? endOf(box, pieces[first - 1]) : QTextCursor();
        const int place = next.position();
        box.replacePieces(pieces.sliced(first, count), texts.sliced(first, count), [&] {
            if (finish)
                finish(first, count);
        });
        if (end == pieces.size())
            fromEnd = box.TextLength() - box.SelStart();
        ++changes;
        if (next.position() != place)
            return false;
        end = first;
    }
    if (!pieces.isEmpty())
        box.setSelStart(box.TextLength() - fromEnd);
    text.sharedText(); // no step waits for it then
    return text.changeCount() == changes;
}

} // namespace ORVTListview
