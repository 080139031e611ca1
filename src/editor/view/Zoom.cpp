#include "editor/view/Zoom.h"

#include "widgets/box/BoxLayers.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>

namespace ORVTListview {

Zoom::Zoom(QPlainTextEdit &box, BoxLayers &layers)
    : m_box(box)
    , m_layers(layers)
{
}

void Zoom::setPercent(int percent)
{
    const int wanted = percent > 0 ? std::clamp(percent, least, most) : off;
    if (wanted == m_percent)
        return;
    m_box.viewport()->removeEventFilter(this);
    if (wanted != off)
        m_box.viewport()->installEventFilter(this);
    m_percent = wanted;
    m_turned = 0;
    m_layers.setZoom(wanted == off ? 100 : wanted);
    Q_EMIT changed();
}

bool Zoom::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QObject::eventFilter(watched, event);
    const auto &wheel = static_cast<const QWheelEvent &>(*event);
    if (wheel.modifiers() != Qt::ControlModifier)
        return false;
    event->accept();
    turn(wheel);
    return true;
}

void Zoom::turn(const QWheelEvent &event)
{
    constexpr int percentOfStep = 10;
    m_turned += event.angleDelta().y();
    const int steps = m_turned / QWheelEvent::DefaultDeltasPerStep;
    m_turned -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        setPercent(std::clamp(m_percent + steps * percentOfStep, least, most));
}

} // namespace ORVTListview
