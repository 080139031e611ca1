// Replacing many pieces of a box's text as one change.

#include <ORVTListview/RichTextBox.h>

#include "base/TextPiece.h"
#include "widgets/box/BoxMarks.h"
#include "widgets/box/BoxParts.h"
#include "widgets/box/BoxSink.h"

namespace ORVTListview {
namespace {

QTextCursor selected(QTextDocument &document, const BoxText &text, const TextPiece &piece)
{
    QTextCursor cursor(&document);
    cursor.setPosition(text.toDocument(piece.start));
    cursor.setPosition(text.toDocument(piece.end()), QTextCursor::KeepAnchor);
    return cursor;
}

} // namespace

// From the back to the front, so that the places before stay right.
void RichTextBox::replaceEach(const QList<TextPiece> &pieces, const PutPiece &put,
                              const std::function<void()> &finish)
{
    if (pieces.isEmpty())
        return;
    const Changing changing(*this);
    if (d->late.areWaiting()) {
        QList<LateColours::Range> places;
        for (const TextPiece &piece : pieces)
            places.append({d->text.toDocument(piece.start), d->text.toDocument(piece.end())});
        d->late.giveAround(places);
    }
    d->announceChange(false);
    QTextCursor oneChange(document());
    QTextCursor caret;
    oneChange.beginEditBlock();
    try {
        for (qsizetype i = pieces.size() - 1; i >= 0; --i) {
            QTextCursor cursor = selected(*document(), d->text, pieces[i]);
            put(cursor, i);
            if (caret.isNull())
                caret = cursor;
        }
        if (finish)
            finish();
    } catch (...) { // nobody would hear of any change any more
        oneChange.endEditBlock();
        throw;
    }
    oneChange.endEditBlock();
    const int place = d->text.whole(caret.position());
    select(place, place);
}

void RichTextBox::replacePieces(const QList<TextPiece> &pieces, const QString &text)
{
    replaceEach(pieces, [&text](QTextCursor &cursor, qsizetype) {
        const QTextCharFormat format = BoxFormats::formatAt(cursor);
        cursor.removeSelectedText();
        BoxMarks::insert(cursor, text, format);
    });
}

void RichTextBox::replacePieces(const QList<TextPiece> &pieces, const QList<ColouredText> &texts,
                                const std::function<void()> &finish)
{
    const auto put = [&](QTextCursor &cursor, qsizetype i) {
        BoxSink sink(cursor, d->formats);
        writeColoured(texts[i], d->formats.base(), sink);
    };
    replaceEach(pieces, put, finish);
}

} // namespace ORVTListview
