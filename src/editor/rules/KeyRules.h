#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QtGlobal>

namespace ORVTListview {

// The virtual-key numbers that the editor's rules name.
enum VirtualKeyCode : qint16 {
    BackspaceKey = 8,
    TabKey = 9,
    EnterKey = 13,
    EscapeKey = 27,
    SpaceKey = 32,
    PageUpKey = 33,
    PageDownKey = 34,
    EndKey = 35,
    HomeKey = 36,
    LeftKey = 37,
    UpKey = 38,
    RightKey = 39,
    DownKey = 40,
    InsertKey = 45,
    DeleteKey = 46,
    F1Key = 112,
    F6Key = 117,
};

enum ShiftBit : qint16 {
    ShiftBitShift = 1,
    ShiftBitCtrl = 2,
    ShiftBitAlt = 4,
};

// What becomes of a key in the editor.
enum class KeyDecision {
    ReachBox,   // the box acts as it always does; the host's shortcuts come first
    PassToHost, // not for the box: the host's shortcuts may act
    Swallow,    // nobody acts, but the host's shortcuts may
    RaiseHelp,  // the host hears the key, then it reaches the box
    PopupKey,   // the pop-up word list acts on it, if it wants to
    EditingKey, // the editor's own handling, then perhaps the box
    IndentLines,
    UnindentLines,
    DeleteBlankBefore,
    DeleteWordAfter,
    Cut,
    Copy,
    Paste,
    Undo,
    Redo,
    SelectAll,
    ShowWordList,
    Analyze,
    Compile,
};

// The state that a decision looks at besides the key.
struct KeyState
{
    bool popupListShown = false;
    bool hasSelection = false;
};

ORVT_CORE_EXPORT KeyDecision decideKey(qint16 keyCode, qint16 shift, const KeyState &state);

// Whether the editor acts on the key itself, so that the host's shortcuts must not
// have it first.
ORVT_CORE_EXPORT bool isTakenFromShortcuts(KeyDecision decision);

} // namespace ORVTListview
