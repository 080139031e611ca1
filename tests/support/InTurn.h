#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QList>
#include <QtCore/QTimer>
#include <QtTest/QTest>

#include <functional>
#include <utility>

// What a user does with the mouse, one step after the other with time between. A step
// may run a loop of its own, as a drag does: the next is taken there.
class InTurn
{
public:
    using Step = std::function<void()>;

    static void take(QList<Step> steps)
    {
        bool done = false;
        steps.append([&done] { done = true; });
        InTurn turn(std::move(steps));
        turn.takeNext();
        QTRY_VERIFY(done);
        QCoreApplication::processEvents();
    }

private:
    explicit InTurn(QList<Step> steps)
        : m_steps(std::move(steps))
    {
    }

    // Not all timers at once: systems differ in the order in which those run out.
    void takeNext()
    {
        if (m_steps.isEmpty())
            return;
        const Step step = m_steps.takeFirst();
        QTimer::singleShot(5, &m_timers, [this] { takeNext(); });
        step();
    }

    QList<Step> m_steps;
    QObject m_timers; // go with it
};
