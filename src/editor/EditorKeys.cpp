#include "editor/EditorKeys.h"

#include "base/EventGuard.h"
#include "editor/CodeEditor.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>

namespace ORVTListview {

EditorKeys::EditorKeys(CodeEditor &editor)
    : m_editor(editor)
{
}

KeyDecision EditorKeys::decide(qint16 keyCode, qint16 shift) const
{
    return decideKey(keyCode, shift, {m_editor.isWordListShown(), m_editor.box().SelLength() >= 1});
}

bool EditorKeys::hasSelection() const
{
    return m_editor.box().SelLength() >= 1;
}

void EditorKeys::keyDown(qint16 &KeyCode, qint16 Shift)
{
    const QPointer<CodeEditor> editor(&m_editor); // the host may destroy it in an event
    bool reachesBox = false;
    try {
        reachesBox = carryOut(decide(KeyCode, Shift), KeyCode, Shift);
    } catch (const std::exception &) {
        // A key never ends in an error message.
    }
    if (!reachesBox)
        KeyCode = 0;
    if (editor)
        editor->rearmStatusTimer();
}

bool EditorKeys::carryOut(KeyDecision decision, qint16 &KeyCode, qint16 Shift)
{
    switch (decision) {
    case KeyDecision::ReachBox:
    case KeyDecision::PassToHost:
        return true;
    case KeyDecision::Swallow:
        return false;
    case KeyDecision::RaiseHelp:
        raiseEvent(m_editor, &CodeEditor::KeyDown, KeyCode, Shift);
        return KeyCode != 0;
    case KeyDecision::PopupKey:
        return !m_editor.wordListKey(KeyCode) &&
               carryOut(decideKey(KeyCode, Shift, {false, hasSelection()}), KeyCode, Shift);
    case KeyDecision::EditingKey:
        return editingKey(KeyCode);
    case KeyDecision::DeleteWordAfter:
        m_editor.PushUndoSnapshot();
        return true;
    default:
        return runCommand(decision);
    }
}

bool EditorKeys::runCommand(KeyDecision decision)
{
    QString errMsg;
    switch (decision) {
    case KeyDecision::IndentLines:
        m_editor.indentLines();
        break;
    case KeyDecision::UnindentLines:
        m_editor.unindentLines();
        break;
    case KeyDecision::DeleteBlankBefore:
        m_editor.deleteBlankBeforeCaret();
        break;
    case KeyDecision::Cut:
        m_editor.cutByKey();
        break;
    case KeyDecision::Copy:
        m_editor.RTextCopy();
        break;
    case KeyDecision::Paste:
        m_editor.pasteClipboard();
        break;
    case KeyDecision::Undo:
        m_editor.Undo(errMsg);
        break;
    case KeyDecision::Redo:
        m_editor.Redo(errMsg);
        break;
    case KeyDecision::SelectAll:
        m_editor.RTextSelectAll();
        break;
    case KeyDecision::ShowWordList:
        m_editor.TryToPopupList(false);
        break;
    case KeyDecision::Analyze:
        raiseEvent(m_editor, &CodeEditor::QueryAnalyze);
        break;
    case KeyDecision::Compile:
        raiseEvent(m_editor, &CodeEditor::QueryCompile);
        break;
    default:
        return true;
    }
    return false;
}

bool EditorKeys::editingKey(qint16 keyCode)
{
    switch (keyCode) {
    case EnterKey:
        m_editor.breakLine();
        return false;
    case DeleteKey:
        m_editor.PushUndoSnapshot();
        return true;
    case BackspaceKey:
        m_editor.PushUndoSnapshot();
        return !m_editor.unindentBeforeCaret();
    case UpKey:
    case DownKey:
        m_editor.finishCaretLine();
        return !m_editor.lines().moveToSameOffset(keyCode == UpKey ? -1 : 1);
    default: // Page Up, Page Down, Home, End
        m_editor.finishCaretLine();
        return true;
    }
}

} // namespace ORVTListview
