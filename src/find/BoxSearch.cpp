#include "find/BoxSearch.h"

#include "base/TextPiece.h"
#include "base/TextRules.h"
#include "find/rules/ProgramSearch.h"
#include "widgets/box/BoxCommands.h"
#include "widgets/box/KeptView.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {

void BoxSearch::begin(RichTextBox &box)
{
    m_box = &box;
    goOnAt(box.SelStart() + 1);
    m_options = RichTextBox::FindNoHighlight;
}

void BoxSearch::end()
{
    m_box = nullptr;
    m_place = {};
}

void BoxSearch::goOnAt(qint32 start)
{
    const qint32 line = m_box->GetLineFromChar(start);
    const QTextBlock block = m_box->document()->findBlockByNumber(line);
    const qint32 offset = std::min(start - m_box->lineStart(line), block.length() - 1);
    const int place = block.position() + offset;
    m_distance = start - m_box->lineStart(line) - offset;
    m_isFront = place == 0;
    m_place = QTextCursor(m_box->document());
    m_place.setPosition(std::max(0, place - 1));
    m_place.setPosition(place, QTextCursor::KeepAnchor);
}

// Without the character before the place it is another text; the user looks at the caret.
qint32 BoxSearch::start() const
{
    if (m_isFront)
        return m_box->lineText(0).isEmpty() ? m_distance : 0;
    if (m_place.hasSelection())
        return m_box->lineStart(m_place.blockNumber()) + m_place.positionInBlock() +
               (m_place.atBlockEnd() ? m_distance : 0);
    const qint32 caret = m_box->SelStart();
    return caret < m_box->TextLength() ? caret : 0;
}

TextSearch BoxSearch::how() const
{
    return {m_options.testFlag(RichTextBox::FindWholeWord),
            m_options.testFlag(RichTextBox::FindMatchCase)};
}

bool BoxSearch::findNext(const QString &wanted)
{
    if (!m_box || wanted.isEmpty())
        return false;
    const QString text = asInBox(wanted);
    const auto place = static_cast<qint32>(findInProgram(m_box->Text(), text, start(), how()));
    if (place < 0) {
        m_box->setSelLength(0);
        goOnAt(0);
        return false;
    }
    const auto length = static_cast<qint32>(text.size());
    const KeptView view(*m_box);
    m_box->setSelStart(place);
    m_box->setSelLength(length);
    goOnAt(place + length);
    return true;
}

void BoxSearch::replace(const QString &wanted, const QString &text)
{
    if (!m_box || wanted.isEmpty() ||
        m_box->SelText().compare(asInBox(wanted), Qt::CaseInsensitive) != 0)
        return;
    m_box->commands().replace({{m_box->SelStart(), m_box->SelLength()}}, text);
    if (m_box)
        goOnAt(m_box->SelStart() + 1); // the caret stands behind the new text
}

qsizetype BoxSearch::replaceAll(const QString &wanted, const QString &text)
{
    if (!m_box)
        return 0;
    const QString searched = asInBox(wanted);
    const QList<qsizetype> places = placesToReplace(m_box->Text(), searched, how());
    QList<TextPiece> pieces;
    pieces.reserve(places.size());
    for (const qsizetype place : places)
        pieces.append({static_cast<qint32>(place), static_cast<qint32>(searched.size())});
    if (!pieces.isEmpty())
        m_box->commands().replace(pieces, text);
    if (m_box)
        m_box->setSelLength(0);
    return places.size();
}

} // namespace ORVTListview
