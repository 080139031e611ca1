#pragma once

#include "base/KeyCodes.h"

class QKeyEvent;

namespace ORVTListview {

// A key as published events report it.
struct VirtualKey
{
    qint16 keyCode = 0; // VirtualKeyCode; 0 for a key that has none
    qint16 shift = 0;   // ShiftBit

    friend bool operator==(const VirtualKey &, const VirtualKey &) = default;
};

// Letters and digits are their own upper-case character code whatever the shift
// state, other characters the number of their key on a US keyboard; the keypad's
// digits and signs have numbers of their own. A character on no such key is 231,
// "a character". Text typed with AltGr carries neither Ctrl nor Alt.
VirtualKey virtualKey(const QKeyEvent &event);

// True when the key types a character: a printable one, a tab or an invisible
// formatting character, without Ctrl or Alt held (AltGr is neither).
bool isTyping(const QKeyEvent &event);

} // namespace ORVTListview
