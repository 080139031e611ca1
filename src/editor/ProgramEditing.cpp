#include "editor/ProgramEditing.h"

#include "base/MessageService.h"
#include "base/TextPiece.h"
#include "editor/CodeReplacing.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/ProgramClipboard.h"
#include "editor/TypedColouring.h"
#include "widgets/box/KeptView.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

ProgramEditing::ProgramEditing(RichTextBox &box, const EditorThread &thread, EditorUndo &undo,
                               TypedColouring &colouring, ProgramClipboard &clipboard)
    : m_box(box)
    , m_thread(thread)
    , m_undo(undo)
    , m_colouring(colouring)
    , m_clipboard(clipboard)
    , m_lines(box)
    , m_help(box, undo, colouring, m_lines)
{
}

void ProgramEditing::typeText(const QString &text)
{
    const RichTextBox::Changing changing(m_box);
    if (text == u"\r\n") {
        breakLine();
        return;
    }
    const bool isOneCharacter = text.size() == 1 || (text.size() == 2 && text[0].isHighSurrogate());
    if (!isOneCharacter) { // committed by an input method
        m_undo.noteTyped(text);
        m_clipboard.pasteChecked(text);
        return;
    }
    m_undo.noteTyped(text);
    const bool isTyped = m_colouring.edit([&] { m_colouring.type(text); });
    if (!isTyped || !TypedColouring::finishesWord(text))
        return;
    m_colouring.finishEdit();
    m_help.noteWordFinished(text);
}

void ProgramEditing::breakLine()
{
    m_undo.PushUndoSnapshot();
    const qint32 line = m_box.GetLineFromChar(m_box.SelStart());
    const TypingHelp::LineBreak how = m_help.lineBreak();
    if (!m_colouring.edit([&] { m_help.breakLine(how); }))
        return;
    m_colouring.finishLine(line);
    m_box.ensureCursorVisible();
}

void ProgramEditing::indentLines()
{
    m_undo.PushUndoSnapshot();
    changeIndent([this] { m_lines.indentSelectedLines(); });
}

void ProgramEditing::unindentLines()
{
    m_undo.PushUndoSnapshot();
    changeIndent([this] { m_lines.unindentSelectedLines(); });
}

// A line keeps its colours, and one that is not finished still waits for that.
void ProgramEditing::changeIndent(const std::function<void()> &change)
{
    const RichTextBox::Changing changing(m_box);
    const KeptView view(m_box);
    if (m_colouring.isUnfinished())
        m_colouring.edit(change);
    else
        change();
}

bool ProgramEditing::deleteBlankBeforeCaret()
{
    bool isDone = false;
    m_colouring.edit([&] { isDone = m_lines.deleteBlankBeforeCaret(); });
    return isDone;
}

bool ProgramEditing::unindentBeforeCaret()
{
    bool isDone = false;
    m_colouring.edit([&] { isDone = m_lines.unindentBeforeCaret(); });
    return isDone;
}

void ProgramEditing::replace(const QList<TextPiece> &pieces, const QString &text, Replacing how)
{
    if (pieces.isEmpty())
        return;
    const MessagesLater later(m_thread.messages); // the pieces are places of now
    const RichTextBox::Changing changing(m_box);
    m_undo.PushUndoSnapshot();
    m_colouring.finishEdit(); // the caret leaves the line
    const KeptView view(m_box);
    if (how == Replacing::InColours)
        replaceInColours(m_thread, m_box, pieces, text);
    else
        m_box.replacePieces(pieces, text);
}

} // namespace ORVTListview
