#include "widgets/input/VirtualKeys.h"

#include <QtGui/QKeyEvent>

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

struct Entry
{
    int key; // Qt::Key
    qint16 code;
};

// Keys that are the same wherever they stand, and the signs of the main keyboard.
constexpr std::array keys{
    Entry{Qt::Key_Backspace, BackspaceKey},
    Entry{Qt::Key_Tab, TabKey},
    Entry{Qt::Key_Backtab, TabKey},
    Entry{Qt::Key_Clear, ClearKey},
    Entry{Qt::Key_Return, EnterKey},
    Entry{Qt::Key_Enter, EnterKey},
    Entry{Qt::Key_Shift, ShiftKey},
    Entry{Qt::Key_Control, CtrlKey},
    Entry{Qt::Key_Alt, AltKey},
    Entry{Qt::Key_AltGr, AltKey},
    Entry{Qt::Key_Pause, PauseKey},
    Entry{Qt::Key_CapsLock, CapsLockKey},
    Entry{Qt::Key_Escape, EscapeKey},
    Entry{Qt::Key_Space, SpaceKey},
    Entry{Qt::Key_PageUp, PageUpKey},
    Entry{Qt::Key_PageDown, PageDownKey},
    Entry{Qt::Key_End, EndKey},
    Entry{Qt::Key_Home, HomeKey},
    Entry{Qt::Key_Left, LeftKey},
    Entry{Qt::Key_Up, UpKey},
    Entry{Qt::Key_Right, RightKey},
    Entry{Qt::Key_Down, DownKey},
    Entry{Qt::Key_Select, SelectKey},
    Entry{Qt::Key_Execute, ExecuteKey},
    Entry{Qt::Key_Print, PrintKey},
    Entry{Qt::Key_SysReq, PrintKey},
    Entry{Qt::Key_Insert, InsertKey},
    Entry{Qt::Key_Delete, DeleteKey},
    Entry{Qt::Key_Help, HelpKey},
    Entry{Qt::Key_Meta, LeftMetaKey},
    Entry{Qt::Key_Super_L, LeftMetaKey},
    Entry{Qt::Key_Super_R, RightMetaKey},
    Entry{Qt::Key_Menu, MenuKey},
    Entry{Qt::Key_NumLock, NumLockKey},
    Entry{Qt::Key_ScrollLock, ScrollLockKey},

    // Signs that share a key with a digit
    Entry{Qt::Key_ParenRight, '0'},
    Entry{Qt::Key_Exclam, '1'},
    Entry{Qt::Key_At, '2'},
    Entry{Qt::Key_NumberSign, '3'},
    Entry{Qt::Key_Dollar, '4'},
    Entry{Qt::Key_Percent, '5'},
    Entry{Qt::Key_AsciiCircum, '6'},
    Entry{Qt::Key_Ampersand, '7'},
    Entry{Qt::Key_Asterisk, '8'},
    Entry{Qt::Key_ParenLeft, '9'},

    // Other signs, two on a key
    Entry{Qt::Key_Semicolon, SemicolonKey},
    Entry{Qt::Key_Colon, SemicolonKey},
    Entry{Qt::Key_Equal, EqualKey},
    Entry{Qt::Key_Plus, EqualKey},
    Entry{Qt::Key_Comma, CommaKey},
    Entry{Qt::Key_Less, CommaKey},
    Entry{Qt::Key_Minus, MinusKey},
    Entry{Qt::Key_Underscore, MinusKey},
    Entry{Qt::Key_Period, PeriodKey},
    Entry{Qt::Key_Greater, PeriodKey},
    Entry{Qt::Key_Slash, SlashKey},
    Entry{Qt::Key_Question, SlashKey},
    Entry{Qt::Key_QuoteLeft, BackquoteKey},
    Entry{Qt::Key_AsciiTilde, BackquoteKey},
    Entry{Qt::Key_BracketLeft, LeftBracketKey},
    Entry{Qt::Key_BraceLeft, LeftBracketKey},
    Entry{Qt::Key_Backslash, BackslashKey},
    Entry{Qt::Key_Bar, BackslashKey},
    Entry{Qt::Key_BracketRight, RightBracketKey},
    Entry{Qt::Key_BraceRight, RightBracketKey},
    Entry{Qt::Key_Apostrophe, QuoteKey},
    Entry{Qt::Key_QuoteDbl, QuoteKey},
};

constexpr std::array keypadSigns{
    Entry{Qt::Key_Asterisk, KeypadTimesKey}, Entry{Qt::Key_Plus, KeypadPlusKey},
    Entry{Qt::Key_Minus, KeypadMinusKey},    Entry{Qt::Key_Period, KeypadPointKey},
    Entry{Qt::Key_Comma, KeypadPointKey},    Entry{Qt::Key_Slash, KeypadDivideKey},
};

template <std::size_t size>
qint16 find(const std::array<Entry, size> &table, int key)
{
    const auto it = std::find_if(table.begin(), table.end(),
                                 [key](const Entry &entry) { return entry.key == key; });
    return it == table.end() ? qint16{0} : it->code;
}

// The code of `key` when it lies in a row of keys with codes in a row.
qint16 inRow(int key, int first, int last, int code)
{
    return key >= first && key <= last ? static_cast<qint16>(code + key - first) : qint16{0};
}

qint16 keypadCode(int key)
{
    const qint16 digit = inRow(key, Qt::Key_0, Qt::Key_9, KeypadZeroKey);
    return digit != 0 ? digit : find(keypadSigns, key);
}

qint16 plainCode(int key)
{
    for (const qint16 code : {
             inRow(key, Qt::Key_A, Qt::Key_Z, 'A'),
             inRow(key, Qt::Key_0, Qt::Key_9, '0'),
             inRow(key, Qt::Key_F1, Qt::Key_F24, F1Key),
             find(keys, key),
         }) {
        if (code != 0)
            return code;
    }
    return 0;
}

bool isTypeable(const QString &text)
{
    if (text.isEmpty())
        return false;
    const QChar first = text.front();
    return first.isPrint() || first == u'\t' || first.isSurrogate() ||
           first.category() == QChar::Other_Format || first.category() == QChar::Other_PrivateUse;
}

// Some platforms report AltGr as Ctrl and Alt together.
constexpr Qt::KeyboardModifiers altGr = Qt::ControlModifier | Qt::AltModifier;

Qt::KeyboardModifiers commandModifiers(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers() & altGr;
    return held == altGr && isTypeable(event.text()) ? Qt::NoModifier : held;
}

qint16 shiftState(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers commands = commandModifiers(event);
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    const int bits = ((shift || event.key() == Qt::Key_Backtab) ? ShiftBitShift : 0) |
                     (commands.testFlag(Qt::ControlModifier) ? ShiftBitCtrl : 0) |
                     (commands.testFlag(Qt::AltModifier) ? ShiftBitAlt : 0);
    return static_cast<qint16>(bits);
}

} // namespace

VirtualKey virtualKey(const QKeyEvent &event)
{
    qint16 code = 0;
    if (event.modifiers().testFlag(Qt::KeypadModifier))
        code = keypadCode(event.key());
    if (code == 0)
        code = plainCode(event.key());
    if (code == 0 && isTypeable(event.text()))
        code = AnyCharacterKey;
    return {code, shiftState(event)};
}

bool isTyping(const QKeyEvent &event)
{
    return event.key() != Qt::Key_Backtab && commandModifiers(event) == Qt::NoModifier &&
           isTypeable(event.text());
}

} // namespace ORVTListview
