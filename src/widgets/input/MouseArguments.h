#pragma once

#include <QtCore/QPoint>
#include <QtCore/Qt>

class QMouseEvent;
class QWidget;

namespace ORVTListview {

// A mouse event as published events report it.
struct MouseArguments
{
    qint16 Button = 0; // 1 left, 2 right, 4 middle; for a move, those held, added up
    qint16 Shift = 0;  // ShiftBit
    float X = 0;       // twips from the control's corner
    float Y = 0;
};

// The event's receiver is the control or lies inside it.
MouseArguments mouseArguments(const QMouseEvent &event, const QWidget &control);

// The place is the control's, in pixels.
MouseArguments mouseArguments(QPointF place, Qt::MouseButtons buttons,
                              Qt::KeyboardModifiers modifiers, const QWidget &control);

} // namespace ORVTListview
