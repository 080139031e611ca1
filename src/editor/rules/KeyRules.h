#pragma once

#include "base/KeyCodes.h"

#include "base/HouseExport.h"

namespace ORVTListview {

// What becomes of a key in the editor.
enum class KeyDecision {
    ReachBox,   // the box acts as it always does; the host's shortcuts come first
    PassToHost, // not for the box: the host's shortcuts may act
    Swallow,    // nobody acts, but the host's shortcuts may
    RaiseHelp,  // the host hears the key, then it reaches the box
    PopupKey,   // the pop-up word list acts on it, if it wants to
    EditingKey, // the editor's own handling, then perhaps the box
    MovingKey,  // the same, and the text stays as it is
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
    bool mayEdit = true; // else nobody acts on what would change the text
};

ORVT_HOUSE_EXPORT KeyDecision decideKey(qint16 keyCode, qint16 shift, const KeyState &state);

// Whether the editor acts on the key itself, so that the host's shortcuts must not
// have it first.
ORVT_HOUSE_EXPORT bool isTakenFromShortcuts(KeyDecision decision);

} // namespace ORVTListview
