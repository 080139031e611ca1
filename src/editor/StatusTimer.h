#pragma once

#include <QtCore/QTimer>

namespace ORVTListview {

// Tells once that no key has come for half a second. It counts five ticks of 100
// ms since the last key, as published, instead of waiting 500 ms at once.
class StatusTimer : public QObject
{
    Q_OBJECT

public:
    explicit StatusTimer(QObject *parent = nullptr);

    void rearm();

Q_SIGNALS:
    void quiet();

private:
    void tick();

    QTimer *m_timer = nullptr; // made at first use, named Status_Timer
    qint16 m_tickCount = 0;
};

} // namespace ORVTListview
