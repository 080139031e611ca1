#pragma once

#include "platform/VirtualKeys.h"

#include <QtCore/QPointer>
#include <QtCore/QString>
#include <QtGui/QKeyEvent>

namespace ORVTListview::KeyEvents {

// Raises KeyDown or KeyUp of a control. False when a receiver has swallowed the
// key or destroyed the control.
template <typename Control>
bool raise(Control &control, void (Control::*signal)(qint16 &, qint16), const QKeyEvent &event)
{
    VirtualKey key = virtualKey(event);
    if (key.keyCode == 0)
        return true;
    const QPointer<Control> alive(&control);
    Q_EMIT(control.*signal)(key.keyCode, key.shift);
    return alive && key.keyCode != 0;
}

// Raises KeyPress for a key that has a character; typed becomes what is typed.
// False as above.
template <typename Control>
bool raisePress(Control &control, const QKeyEvent &event, QString &typed)
{
    constexpr char16_t deleteCharacter = 0x7f; // some platforms' text of the Delete key
    typed = event.text();
    if (typed.size() != 1 || typed.front() == deleteCharacter)
        return true;
    auto code = static_cast<qint16>(typed.front().unicode());
    const QPointer<Control> alive(&control);
    Q_EMIT control.KeyPress(code);
    typed = QChar(static_cast<char16_t>(code));
    return alive && code != 0;
}

// The key press with another character.
inline QKeyEvent retyped(const QKeyEvent &event, const QString &typed)
{
    return QKeyEvent(QEvent::KeyPress, typed.front().toUpper().unicode(), event.modifiers(), typed,
                     event.isAutoRepeat(), static_cast<quint16>(event.count()));
}

} // namespace ORVTListview::KeyEvents
