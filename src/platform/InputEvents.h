#pragma once

#include <QtCore/Qt>

namespace ORVTListview::InputEvents {

// The published bits of mouse buttons: 1 left, 2 right, 4 middle.
constexpr qint16 buttons(Qt::MouseButtons held)
{
    return static_cast<qint16>((held & Qt::LeftButton ? 1 : 0) | (held & Qt::RightButton ? 2 : 0) |
                               (held & Qt::MiddleButton ? 4 : 0));
}

// The published bits of modifier keys: 1 Shift, 2 Ctrl, 4 Alt.
constexpr qint16 shift(Qt::KeyboardModifiers held)
{
    return static_cast<qint16>((held & Qt::ShiftModifier ? 1 : 0) |
                               (held & Qt::ControlModifier ? 2 : 0) |
                               (held & Qt::AltModifier ? 4 : 0));
}

} // namespace ORVTListview::InputEvents
