#include "editor/EditorKeys.h"

#include "base/EventGuard.h"
#include "editor/EditorUndo.h"
#include "editor/ProgramClipboard.h"
#include "editor/ProgramEditing.h"
#include "editor/ProgramText.h"
#include "editor/StatusTimer.h"
#include "editor/TypedColouring.h"
#include "editor/WordChoice.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>

#include <algorithm>
#include <iterator>

namespace ORVTListview {
namespace {

using Acts = EditorKeys::Acts;

// What the editor does in the place of the box.
struct Command
{
    KeyDecision decision;
    void (*run)(const Acts &acts);
};
constexpr Command commands[] = {
    {KeyDecision::IndentLines, [](const Acts &acts) { acts.editing.indentLines(); }},
    {KeyDecision::UnindentLines, [](const Acts &acts) { acts.editing.unindentLines(); }},
    {KeyDecision::DeleteBlankBefore,
     [](const Acts &acts) { acts.editing.deleteBlankBeforeCaret(); }},
    {KeyDecision::Cut, [](const Acts &acts) { acts.clipboard.cutByKey(); }},
    {KeyDecision::Copy, [](const Acts &acts) { acts.clipboard.RTextCopy(); }},
    {KeyDecision::Paste, [](const Acts &acts) { acts.clipboard.pasteClipboard(); }},
    {KeyDecision::Undo, [](const Acts &acts) { acts.undo.stepForUser(EditorUndo::Way::Back); }},
    {KeyDecision::Redo, [](const Acts &acts) { acts.undo.stepForUser(EditorUndo::Way::Forward); }},
    {KeyDecision::SelectAll, [](const Acts &acts) { acts.text.RTextSelectAll(); }},
    {KeyDecision::ShowWordList, [](const Acts &acts) { acts.words.TryToPopupList(false); }},
};

} // namespace

EditorKeys::EditorKeys(const Acts &acts)
    : m_acts(acts)
{
}

KeyDecision EditorKeys::decide(qint16 keyCode, qint16 shift) const
{
    return decideKey(keyCode, shift, state(m_acts.words.popup().isShown()));
}

KeyState EditorKeys::state(bool popupListShown) const
{
    const RichTextBox &box = m_acts.editing.box();
    return {popupListShown, box.SelLength() >= 1, mayUserEdit(box)};
}

void EditorKeys::keyDown(qint16 &KeyCode, qint16 Shift)
{
    const QPointer<EditorKeys> self(this); // the host may destroy it in an event
    bool reachesBox = false;
    EventGuard::run([&] { // a key never ends in an error message
        reachesBox = carryOut(decide(KeyCode, Shift), KeyCode, Shift);
        return true;
    });
    if (!reachesBox)
        KeyCode = 0;
    if (self)
        m_acts.status.rearm();
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
        raiseEvent(*this, &EditorKeys::KeyDown, KeyCode, Shift);
        return KeyCode != 0;
    case KeyDecision::PopupKey:
        return !m_acts.words.popup().key(KeyCode) &&
               carryOut(decideKey(KeyCode, Shift, state(false)), KeyCode, Shift);
    case KeyDecision::EditingKey:
        return editingKey(KeyCode);
    case KeyDecision::MovingKey:
        return movingKey(KeyCode);
    case KeyDecision::DeleteWordAfter:
        m_acts.undo.PushUndoSnapshot();
        return true;
    case KeyDecision::Analyze:
        m_acts.words.popup().close(); // what is found comes to be seen
        raiseEvent(*this, &EditorKeys::QueryAnalyze);
        return false;
    case KeyDecision::Compile:
        m_acts.words.popup().close();
        raiseEvent(*this, &EditorKeys::QueryCompile);
        return false;
    default:
        return runCommand(decision);
    }
}

bool EditorKeys::runCommand(KeyDecision decision) const
{
    const auto *const command =
        std::find_if(std::begin(commands), std::end(commands),
                     [decision](const Command &each) { return each.decision == decision; });
    if (command == std::end(commands))
        return true;
    command->run(m_acts);
    return false;
}

bool EditorKeys::editingKey(qint16 keyCode)
{
    switch (keyCode) {
    case EnterKey:
        m_acts.editing.breakLine();
        return false;
    case BackspaceKey:
        m_acts.undo.PushUndoSnapshot();
        return !m_acts.editing.unindentBeforeCaret();
    default: // Delete
        m_acts.undo.PushUndoSnapshot();
        return true;
    }
}

bool EditorKeys::movingKey(qint16 keyCode)
{
    m_acts.colouring.finishCaretLine();
    switch (keyCode) {
    case UpKey:
        return !m_acts.editing.lines().moveToSameOffset(-1);
    case DownKey:
        return !m_acts.editing.lines().moveToSameOffset(1);
    case HomeKey:
        return !m_acts.editing.help().goHome();
    default: // Page Up, Page Down, End
        return true;
    }
}

} // namespace ORVTListview
