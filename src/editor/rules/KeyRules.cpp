#include "editor/rules/KeyRules.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

enum class When { Always, PopupShown, Selection };

struct Rule
{
    qint16 firstKey;
    qint16 lastKey;
    When when;
    KeyDecision decision;
};

constexpr qint16 lowestKey = 0;
constexpr qint16 highestKey = 32767;

constexpr Rule key(qint16 code, KeyDecision decision, When when = When::Always)
{
    return {code, code, when, decision};
}

constexpr Rule anyOtherKey(KeyDecision decision)
{
    return {lowestKey, highestKey, When::Always, decision};
}

constexpr Rule keysThatMove(KeyDecision decision)
{
    return {PageUpKey, DeleteKey, When::Always, decision};
}

// In each table the first rule that fits decides.

constexpr std::array plainKeys{
    key(BackspaceKey, KeyDecision::PopupKey, When::PopupShown),
    key(EnterKey, KeyDecision::PopupKey, When::PopupShown),
    key(TabKey, KeyDecision::PopupKey, When::PopupShown),
    key(EscapeKey, KeyDecision::PopupKey, When::PopupShown),
    key(DeleteKey, KeyDecision::PopupKey, When::PopupShown),
    key(UpKey, KeyDecision::PopupKey, When::PopupShown),
    key(DownKey, KeyDecision::PopupKey, When::PopupShown),
    key(PageUpKey, KeyDecision::PopupKey, When::PopupShown),
    key(PageDownKey, KeyDecision::PopupKey, When::PopupShown),
    key(HomeKey, KeyDecision::PopupKey, When::PopupShown),
    key(EndKey, KeyDecision::PopupKey, When::PopupShown),
    key(DeleteKey, KeyDecision::EditingKey),
    key(BackspaceKey, KeyDecision::EditingKey),
    key(EnterKey, KeyDecision::EditingKey),
    key(UpKey, KeyDecision::MovingKey),
    key(DownKey, KeyDecision::MovingKey),
    key(PageUpKey, KeyDecision::MovingKey),
    key(PageDownKey, KeyDecision::MovingKey),
    key(HomeKey, KeyDecision::MovingKey),
    key(EndKey, KeyDecision::MovingKey),
    key(TabKey, KeyDecision::IndentLines, When::Selection),
    key(F6Key, KeyDecision::Analyze),
    key(F1Key, KeyDecision::RaiseHelp),
    anyOtherKey(KeyDecision::ReachBox),
};

constexpr std::array shiftKeys{
    key(TabKey, KeyDecision::UnindentLines, When::Selection),
    key(TabKey, KeyDecision::DeleteBlankBefore),
    // As users of other editors expect; the box would do its own.
    key(EnterKey, KeyDecision::EditingKey),
    key(DeleteKey, KeyDecision::Cut),
    key(InsertKey, KeyDecision::Paste),
    anyOtherKey(KeyDecision::ReachBox),
};

constexpr std::array ctrlKeys{
    key('C', KeyDecision::Copy),
    key('X', KeyDecision::Cut),
    key('V', KeyDecision::Paste),
    key('Z', KeyDecision::Undo),
    key('Y', KeyDecision::Redo),
    key(SpaceKey, KeyDecision::ShowWordList),
    key('A', KeyDecision::SelectAll),
    key(F6Key, KeyDecision::Compile),
    key('H', KeyDecision::PassToHost),
    key('F', KeyDecision::PassToHost),
    key('G', KeyDecision::PassToHost),
    key(InsertKey, KeyDecision::Copy),
    key(DeleteKey, KeyDecision::DeleteWordAfter),
    keysThatMove(KeyDecision::ReachBox),
    anyOtherKey(KeyDecision::Swallow),
};

constexpr std::array otherStates{
    keysThatMove(KeyDecision::ReachBox),
    anyOtherKey(KeyDecision::Swallow),
};

bool holds(When when, const KeyState &state)
{
    switch (when) {
    case When::Always:
        return true;
    case When::PopupShown:
        return state.popupListShown;
    case When::Selection:
        return state.hasSelection;
    }
    return false;
}

template <typename Table>
KeyDecision firstFit(const Table &table, qint16 keyCode, const KeyState &state)
{
    const auto fit = std::find_if(table.begin(), table.end(), [&](const Rule &rule) {
        return keyCode >= rule.firstKey && keyCode <= rule.lastKey && holds(rule.when, state);
    });
    return fit == table.end() ? KeyDecision::Swallow : fit->decision;
}

KeyDecision decide(qint16 keyCode, qint16 shift, const KeyState &state)
{
    switch (shift & (ShiftBitShift | ShiftBitCtrl | ShiftBitAlt)) {
    case 0:
        return firstFit(plainKeys, keyCode, state);
    case ShiftBitShift:
        return firstFit(shiftKeys, keyCode, state);
    case ShiftBitCtrl:
        return firstFit(ctrlKeys, keyCode, state);
    default:
        return firstFit(otherStates, keyCode, state);
    }
}

// The known words are there to be put in.
bool changesText(KeyDecision decision)
{
    switch (decision) {
    case KeyDecision::EditingKey:
    case KeyDecision::IndentLines:
    case KeyDecision::UnindentLines:
    case KeyDecision::DeleteBlankBefore:
    case KeyDecision::DeleteWordAfter:
    case KeyDecision::Cut:
    case KeyDecision::Paste:
    case KeyDecision::Undo:
    case KeyDecision::Redo:
    case KeyDecision::ShowWordList:
        return true;
    default:
        return false;
    }
}

} // namespace

KeyDecision decideKey(qint16 keyCode, qint16 shift, const KeyState &state)
{
    KeyState possible = state;
    possible.popupListShown = state.popupListShown && state.mayEdit;
    const KeyDecision decision = decide(keyCode, shift, possible);
    return state.mayEdit || !changesText(decision) ? decision : KeyDecision::Swallow;
}

bool isTakenFromShortcuts(KeyDecision decision)
{
    return decision != KeyDecision::ReachBox && decision != KeyDecision::PassToHost &&
           decision != KeyDecision::Swallow && decision != KeyDecision::RaiseHelp;
}

} // namespace ORVTListview
