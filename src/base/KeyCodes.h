#pragma once

#include <QtCore/QtGlobal>

namespace ORVTListview {

// The classic virtual-key numbers by which published events name keys. Letters and
// digits are their own upper-case character code and stand here without a name.
enum VirtualKeyCode : qint16 {
    BackspaceKey = 8,
    TabKey = 9,
    ClearKey = 12,
    EnterKey = 13,
    ShiftKey = 16,
    CtrlKey = 17,
    AltKey = 18,
    PauseKey = 19,
    CapsLockKey = 20,
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
    SelectKey = 41,
    ExecuteKey = 43,
    PrintKey = 44,
    InsertKey = 45,
    DeleteKey = 46,
    HelpKey = 47,
    LeftMetaKey = 91,
    RightMetaKey = 92,
    MenuKey = 93,
    KeypadZeroKey = 96, // its other digits follow
    KeypadTimesKey = 106,
    KeypadPlusKey = 107,
    KeypadMinusKey = 109,
    KeypadPointKey = 110,
    KeypadDivideKey = 111,
    F1Key = 112, // F2 to F24 follow
    F6Key = 117,
    NumLockKey = 144,
    ScrollLockKey = 145,
    SemicolonKey = 186, // signs: where they stand on a US keyboard
    EqualKey = 187,
    CommaKey = 188,
    MinusKey = 189,
    PeriodKey = 190,
    SlashKey = 191,
    BackquoteKey = 192,
    LeftBracketKey = 219,
    BackslashKey = 220,
    RightBracketKey = 221,
    QuoteKey = 222,
    AnyCharacterKey = 231, // a character on no such key
};

// The bits of the Shift argument of keys, mouse and drags.
enum ShiftBit : qint16 {
    ShiftBitShift = 1,
    ShiftBitCtrl = 2,
    ShiftBitAlt = 4,
};

} // namespace ORVTListview
