#include "editor/StatusTimer.h"

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr qint16 ticksOfQuiet = 5;

} // namespace

StatusTimer::StatusTimer(QObject *parent)
    : QObject(parent)
{
}

void StatusTimer::rearm()
{
    if (!m_timer) {
        m_timer = new QTimer(this);
        m_timer->setObjectName(QStringLiteral("Status_Timer"));
        connect(m_timer, &QTimer::timeout, this, &StatusTimer::tick);
    }
    m_tickCount = 0;
    m_timer->start(100ms);
}

void StatusTimer::tick()
{
    m_tickCount = static_cast<qint16>((m_tickCount + 1) % ticksOfQuiet);
    if (m_tickCount != 0)
        return;
    m_timer->stop();
    Q_EMIT quiet();
}

} // namespace ORVTListview
