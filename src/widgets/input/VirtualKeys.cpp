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

constexpr qint16 anyCharacter = 231;

// Keys that are the same wherever they stand.
constexpr std::array keys{
    Entry{Qt::Key_Backspace, 8}, Entry{Qt::Key_Tab, 9},          Entry{Qt::Key_Backtab, 9},
    Entry{Qt::Key_Clear, 12},    Entry{Qt::Key_Return, 13},      Entry{Qt::Key_Enter, 13},
    Entry{Qt::Key_Shift, 16},    Entry{Qt::Key_Control, 17},     Entry{Qt::Key_Alt, 18},
    Entry{Qt::Key_AltGr, 18},    Entry{Qt::Key_Pause, 19},       Entry{Qt::Key_CapsLock, 20},
    Entry{Qt::Key_Escape, 27},   Entry{Qt::Key_Space, 32},       Entry{Qt::Key_PageUp, 33},
    Entry{Qt::Key_PageDown, 34}, Entry{Qt::Key_End, 35},         Entry{Qt::Key_Home, 36},
    Entry{Qt::Key_Left, 37},     Entry{Qt::Key_Up, 38},          Entry{Qt::Key_Right, 39},
    Entry{Qt::Key_Down, 40},     Entry{Qt::Key_Select, 41},      Entry{Qt::Key_Execute, 43},
    Entry{Qt::Key_Print, 44},    Entry{Qt::Key_SysReq, 44},      Entry{Qt::Key_Insert, 45},
    Entry{Qt::Key_Delete, 46},   Entry{Qt::Key_Help, 47},        Entry{Qt::Key_Meta, 91},
    Entry{Qt::Key_Super_L, 91},  Entry{Qt::Key_Super_R, 92},     Entry{Qt::Key_Menu, 93},
    Entry{Qt::Key_NumLock, 144}, Entry{Qt::Key_ScrollLock, 145},
};

// Signs that share a key with a digit.
constexpr std::array digitSigns{
    Entry{Qt::Key_ParenRight, '0'},  Entry{Qt::Key_Exclam, '1'},    Entry{Qt::Key_At, '2'},
    Entry{Qt::Key_NumberSign, '3'},  Entry{Qt::Key_Dollar, '4'},    Entry{Qt::Key_Percent, '5'},
    Entry{Qt::Key_AsciiCircum, '6'}, Entry{Qt::Key_Ampersand, '7'}, Entry{Qt::Key_Asterisk, '8'},
    Entry{Qt::Key_ParenLeft, '9'},
};

constexpr std::array signs{
    Entry{Qt::Key_Semicolon, 186},    Entry{Qt::Key_Colon, 186},
    Entry{Qt::Key_Equal, 187},        Entry{Qt::Key_Plus, 187},
    Entry{Qt::Key_Comma, 188},        Entry{Qt::Key_Less, 188},
    Entry{Qt::Key_Minus, 189},        Entry{Qt::Key_Underscore, 189},
    Entry{Qt::Key_Period, 190},       Entry{Qt::Key_Greater, 190},
    Entry{Qt::Key_Slash, 191},        Entry{Qt::Key_Question, 191},
    Entry{Qt::Key_QuoteLeft, 192},    Entry{Qt::Key_AsciiTilde, 192},
    Entry{Qt::Key_BracketLeft, 219},  Entry{Qt::Key_BraceLeft, 219},
    Entry{Qt::Key_Backslash, 220},    Entry{Qt::Key_Bar, 220},
    Entry{Qt::Key_BracketRight, 221}, Entry{Qt::Key_BraceRight, 221},
    Entry{Qt::Key_Apostrophe, 222},   Entry{Qt::Key_QuoteDbl, 222},
};

constexpr std::array keypadSigns{
    Entry{Qt::Key_Asterisk, 106}, Entry{Qt::Key_Plus, 107},  Entry{Qt::Key_Minus, 109},
    Entry{Qt::Key_Period, 110},   Entry{Qt::Key_Comma, 110}, Entry{Qt::Key_Slash, 111},
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
    constexpr int keypadZero = 96;
    const qint16 digit = inRow(key, Qt::Key_0, Qt::Key_9, keypadZero);
    return digit != 0 ? digit : find(keypadSigns, key);
}

qint16 plainCode(int key)
{
    constexpr int f1 = 112;
    for (const qint16 code : {
             inRow(key, Qt::Key_A, Qt::Key_Z, 'A'),
             inRow(key, Qt::Key_0, Qt::Key_9, '0'),
             inRow(key, Qt::Key_F1, Qt::Key_F24, f1),
             find(keys, key),
             find(digitSigns, key),
             find(signs, key),
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
    const int bits = ((shift || event.key() == Qt::Key_Backtab) ? VirtualKey::shiftBit : 0) |
                     (commands.testFlag(Qt::ControlModifier) ? VirtualKey::ctrlBit : 0) |
                     (commands.testFlag(Qt::AltModifier) ? VirtualKey::altBit : 0);
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
        code = anyCharacter;
    return {code, shiftState(event)};
}

bool isTyping(const QKeyEvent &event)
{
    return event.key() != Qt::Key_Backtab && commandModifiers(event) == Qt::NoModifier &&
           isTypeable(event.text());
}

} // namespace ORVTListview
