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

    static void take(QList<Step> steps, int between = 5) // milliseconds
    {
        bool done = false;
        steps.append([&done] { done = true; });
        InTurn turn(std::move(steps), between);
        turn.takeNext();
        QVERIFY(QTest::qWaitFor([&done] { return done; }));
        QCoreApplication::processEvents();
    }

private:
    InTurn(QList<Step> steps, int between)
        : m_steps(std::move(steps))
        , m_between(between)
    {
    }

    // Not all timers at once: systems differ in the order in which those run out.
    void takeNext()
    {
        if (m_steps.isEmpty())
            return;
        const Step step = m_steps.takeFirst();
        QTimer::singleShot(m_between, &m_timers, [this] { takeNext(); });
        step();
    }

    QList<Step> m_steps;
    int m_between;
    QObject m_timers; // go with it
};
