#include "editor/TypedColouring.h"

#include "editor/CodeText.h"
#include "editor/ColourTable.h"
#include "editor/EditorState.h"
#include "editor/LineColouring.h"
#include "editor/ThreadColouring.h"
#include "platform/RichTextBox.h"
#include "shared/ThreadState.h"

#include <utility>

namespace ORVTListview {
namespace {

constexpr bool isBracket(QChar c)
{
    return c == u'(' || c == u')';
}

bool endsWord(QStringView before)
{
    return before.isEmpty() || before.back() == u' ' || before.back() == u'\t' ||
           isBracket(before.back());
}

} // namespace

TypedColouring::TypedColouring(RichTextBox &box)
    : m_box(box)
{
}

void TypedColouring::finishLine(qint32 line)
{
    // Without known words there is nothing to tell words by.
    if (m_box.isComposing() || threadPart<CodeWordList>().index().isEmpty())
        return;
    m_box.recolour(m_box.lineStart(line), finishedLine(threadColouring(), m_box.lineText(line),
                                                       threadPart<EditorState>().EditorSettings));
}

void TypedColouring::finishCaretLine()
{
    finish(m_box.textCursor().block());
}

void TypedColouring::finish(const QTextBlock &block)
{
    if (m_edited == block)
        m_edited = {};
    if (block.isValid())
        finishLine(block.blockNumber());
}

void TypedColouring::noteEdit()
{
    m_edited = m_box.textCursor().block();
}

void TypedColouring::forgetEdit()
{
    m_edited = {};
}

void TypedColouring::finishEdit()
{
    if (m_edited.isValid())
        finish(std::exchange(m_edited, {}));
}

void TypedColouring::followCaret()
{
    if (m_edited != m_box.textCursor().block())
        finishEdit();
}

void TypedColouring::prepareTyping(QStringView text)
{
    const qint32 start = m_box.SelStart();
    const qint32 line = m_box.GetLineFromChar(start);
    const QString lineText = m_box.lineText(line);
    if (m_box.SelLength() > 0)
        return; // takes the colour of what it replaces
    if (IsCommentLine(lineText)) {
        m_box.setSelColor(shownColour(threadPart<EditorState>().EditorSettings.CommentColor));
        return;
    }
    const QStringView before = QStringView(lineText).first(start - m_box.lineStart(line));
    const bool beginsWord = endsWord(before) || (!text.isEmpty() && isBracket(text.front()));
    if (beginsWord)
        m_box.setSelColor(-1); // as text without a class
}

bool TypedColouring::finishesWord(QStringView text)
{
    return text == u" " || text == u"\t" || text == u")";
}

} // namespace ORVTListview
