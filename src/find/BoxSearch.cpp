#include "find/BoxSearch.h"

#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "find/rules/ProgramSearch.h"
#include "widgets/box/BoxCommands.h"

namespace ORVTListview {

void BoxSearch::begin(RichTextBox &box)
{
    m_box = &box;
    m_start = box.SelStart() + 1;
    m_options = RichTextBox::FindNoHighlight;
}

TextSearch BoxSearch::how() const
{
    return {m_options.testFlag(RichTextBox::FindWholeWord),
            m_options.testFlag(RichTextBox::FindMatchCase)};
}

bool BoxSearch::findNext(const QString &wanted)
{
    if (!box() || wanted.isEmpty())
        return false;
    const QString text = asInBox(wanted);
    const auto place = static_cast<qint32>(findInProgram(box()->Text(), text, m_start, how()));
    if (place < 0) {
        box()->setSelLength(0);
        m_start = 0;
        return false;
    }
    const auto length = static_cast<qint32>(text.size());
    box()->setSelStart(place);
    box()->setSelLength(length);
    box()->ensureCursorVisible();
    m_start = place + length;
    return true;
}

void BoxSearch::replace(const QString &wanted, const QString &text)
{
    if (!box() || wanted.isEmpty() ||
        box()->SelText().compare(asInBox(wanted), Qt::CaseInsensitive) != 0)
        return;
    box()->commands().replace({{box()->SelStart(), box()->SelLength()}}, text);
    if (box())
        m_start = box()->SelStart() + 1; // the caret stands behind the new text
}

qsizetype BoxSearch::replaceAll(const QString &wanted, const QString &text)
{
    if (!box())
        return 0;
    const QString searched = asInBox(wanted);
    const QList<qsizetype> places = placesToReplace(box()->Text(), searched, how());
    QList<TextPiece> pieces;
    pieces.reserve(places.size());
    for (const qsizetype place : places)
        pieces.append({static_cast<qint32>(place), static_cast<qint32>(searched.size())});
    if (!pieces.isEmpty())
        box()->commands().replace(pieces, text);
    if (box())
        box()->setSelLength(0);
    return places.size();
}

} // namespace ORVTListview
