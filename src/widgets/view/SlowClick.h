#pragma once

#include <QtCore/QObject>
#include <QtCore/QTimer>

namespace ORVTListview {

// Tells a slow second click on something from a first click and from a double
// click: it comes once the time for a double click is over.
class SlowClick : public QObject
{
    Q_OBJECT

public:
    SlowClick();

    // A button went down; on what was chosen before already, or not.
    void press(bool onChosen);

    // It went up; still on the same thing, or not.
    void release(bool onSame);

    // Something else happened: a key, a second press, a drag, scrolling.
    void stop();

Q_SIGNALS:
    void clicked();

private:
    bool m_pressed = false;
    QTimer m_timer;
};

} // namespace ORVTListview
