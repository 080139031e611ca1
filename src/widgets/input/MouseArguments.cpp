#include "widgets/input/MouseArguments.h"

#include "base/KeyCodes.h"
#include "widgets/look/Twips.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {
namespace {

int buttonBits(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) |
           (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

int shiftBits(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftBitShift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ShiftBitCtrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? ShiftBitAlt : 0);
}

} // namespace

MouseArguments mouseArguments(const QMouseEvent &event, const QWidget &control)
{
    const bool isMove = event.type() == QEvent::MouseMove;
    return mouseArguments(control.mapFromGlobal(event.globalPosition()),
                          isMove ? event.buttons() : event.button(), event.modifiers(), control);
}

MouseArguments mouseArguments(QPointF place, Qt::MouseButtons buttons,
                              Qt::KeyboardModifiers modifiers, const QWidget &control)
{
    return {static_cast<qint16>(buttonBits(buttons)), static_cast<qint16>(shiftBits(modifiers)),
            static_cast<float>(Twips::fromPixelsX(place.x(), control)),
            static_cast<float>(Twips::fromPixelsY(place.y(), control))};
}

} // namespace ORVTListview
