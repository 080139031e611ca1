#pragma once

#include "base/EventGuard.h"
#include "widgets/input/MouseArguments.h"

#include <QtGui/QMouseEvent>

namespace ORVTListview {

// False when a receiver has destroyed the widget.
template <typename Widget>
bool raiseMouse(Widget &widget, void (Widget::*signal)(qint16, qint16, float, float),
                const QMouseEvent &event)
{
    const MouseArguments mouse = mouseArguments(event, widget);
    return raiseEvent(widget, signal, mouse.Button, mouse.Shift, mouse.X, mouse.Y);
}

} // namespace ORVTListview
