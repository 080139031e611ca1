#include "widgets/view/SlowClick.h"

#include "base/EventGuard.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

namespace ORVTListview {

SlowClick::SlowClick()
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { raiseEvent(*this, &SlowClick::clicked); });
}

void SlowClick::press(bool onChosen)
{
    m_timer.stop();
    m_pressed = onChosen;
}

void SlowClick::release(bool onSame)
{
    if (m_pressed && onSame)
        m_timer.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    m_pressed = false;
}

void SlowClick::stop()
{
    m_pressed = false;
    m_timer.stop();
}

} // namespace ORVTListview
