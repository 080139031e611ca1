#pragma once

#include "base/EventGuard.h"
#include "widgets/input/VirtualKeys.h"

#include <QtGui/QKeyEvent>

#include <optional>

// Keys that a widget offers to the receivers of its key events before it acts on
// them. A receiver may destroy the widget.

namespace ORVTListview {

// False when a receiver has swallowed the key or destroyed the widget.
template <typename Widget, typename KeySignal>
bool raiseKey(Widget &widget, KeySignal signal, const QKeyEvent &event)
{
    VirtualKey key = virtualKey(event);
    if (key.keyCode == 0)
        return true;
    return raiseEvent(widget, signal, key.keyCode, key.shift) && key.keyCode != 0;
}

// The text that is left to be typed; none when a receiver has swallowed the key or
// destroyed the widget.
template <typename Widget>
std::optional<QString> raiseCharacter(Widget &widget, const QKeyEvent &event)
{
    constexpr char16_t deleteCharacter = 0x7f; // some platforms' text of the Delete key
    constexpr char16_t noCharacter = 0;        // that of Ctrl+Space
    const QString text = event.text();
    if (text.size() != 1 || text.front() == deleteCharacter || text.front() == noCharacter)
        return text;
    auto code = static_cast<qint16>(text.front().unicode());
    if (!raiseEvent(widget, &Widget::KeyPress, code) || code == 0)
        return std::nullopt;
    return QString(QChar(static_cast<char16_t>(code)));
}

// The event as if that text had been typed in place of its own.
inline QKeyEvent retyped(const QKeyEvent &event, const QString &text)
{
    return QKeyEvent(QEvent::KeyPress, text.front().toUpper().unicode(), event.modifiers(), text,
                     event.isAutoRepeat(), static_cast<quint16>(event.count()));
}

// Whether the widget is to act on a release.
template <typename Widget>
bool raiseKeyUp(Widget &widget, const QKeyEvent &event)
{
    return event.isAutoRepeat() || raiseKey(widget, &Widget::KeyUp, event);
}

// Offers a press to both events, and lets the widget act on what they leave of it.
template <typename Widget, typename Act>
void raiseKeyPress(Widget &widget, QKeyEvent &event, const Act &act)
{
    event.accept();
    if (!raiseKey(widget, &Widget::KeyDown, event))
        return;
    const std::optional<QString> typed = raiseCharacter(widget, event);
    if (!typed)
        return;
    if (*typed == event.text()) {
        act(event);
        return;
    }
    QKeyEvent replaced = retyped(event, *typed);
    const QPointer<Widget> alive(&widget);
    act(replaced);
    event.setAccepted(!alive || replaced.isAccepted());
}

} // namespace ORVTListview
