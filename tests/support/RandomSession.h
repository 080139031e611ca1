#pragma once

#include "support/RandomText.h"
#include "support/Shrunk.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <QtTest/QTest>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

namespace ORVTListview {

// Somebody at work at random, with a model of what then ought to be. A class of its own
// for each test takes one step at a time and says what is wrong after it.
class RandomSession
{
public:
    explicit RandomSession(unsigned seed)
        : m_random(seed)
    {
    }
    virtual ~RandomSession() = default;
    Q_DISABLE_COPY_MOVE(RandomSession) // what is shown knows it

    // What is wrong after the first of these steps, each a seed, that leaves anything
    // wrong; empty when none does.
    QString take(const std::vector<unsigned> &steps)
    {
        for (const unsigned step : steps) {
            m_random = RandomText(step);
            const QString wrong = takeOne();
            if (!wrong.isEmpty())
                return wrong;
            if (++m_steps % 1000 == 0) { // somebody may wait
                std::printf("%d steps\n", m_steps);
                std::fflush(stdout);
            }
        }
        return {};
    }

    QString done() const { return m_done.join(QStringLiteral(", ")); }

    // The last acts of them, for a session too long to be taken again.
    QString doneLast() const
    {
        constexpr qsizetype most = 60;
        return m_done.last(std::min(most, m_done.size())).join(QStringLiteral(", "));
    }

protected:
    virtual void act() = 0;
    virtual QString whatIsWrong() = 0;

    int number(int limit) { return m_random.number(limit); }
    bool oneIn(int count) { return number(count) == 0; }
    template <typename List>
    const auto &oneOf(const List &list)
    {
        return *(std::cbegin(list) + number(static_cast<int>(std::size(list))));
    }

    void note(const QString &act)
    {
        m_done.append(act);
        if (m_done.size() > mostNoted)
            m_done.remove(0, mostNoted / 2);
    }
    void expect(bool isRight, const QString &what)
    {
        if (!isRight && m_wrong.isEmpty())
            m_wrong = what;
    }

    RandomText m_random;

private:
    static constexpr qsizetype mostNoted = 2000;

    QString takeOne()
    {
        try {
            act();
            return m_wrong.isEmpty() ? whatIsWrong() : m_wrong;
        } catch (const std::exception &error) {
            return QStringLiteral("raised: ") + QString::fromUtf8(error.what());
        }
    }

    QStringList m_done;
    QString m_wrong;
    int m_steps = 0;
};

// What went wrong in so many sessions with so many steps together, and the few steps
// that lead to it; empty when all went well.
template <typename Session>
QString failureIn(int sessions, int allSteps)
{
    std::mt19937 random(randomSeed());
    const int each = std::max(1, randomSteps(allSteps) / sessions);
    std::printf("Figure: %d steps\n", sessions * each);
    std::vector<unsigned> steps(static_cast<std::size_t>(each));
    for (int i = 0; i < sessions; ++i) {
        const auto seed = static_cast<unsigned>(random());
        std::generate(steps.begin(), steps.end(), std::ref(random));
        const auto wrongIn = [seed](const std::vector<unsigned> &some) {
            return Session(seed).take(some);
        };
        auto whole = std::make_unique<Session>(seed);
        const QString found = whole->take(steps);
        if (found.isEmpty())
            continue;
        std::printf("A session of %d steps went wrong: %s after: %s\nFewer are looked for\n", each,
                    qPrintable(found), qPrintable(whole->doneLast()));
        std::fflush(stdout);
        whole.reset();
        const auto fails = [&](const std::vector<unsigned> &some) {
            return !wrongIn(some).isEmpty();
        };
        Session session(seed);
        const QString wrong = session.take(shrunk(steps, fails));
        return (wrong.isEmpty() ? found : wrong) + QStringLiteral(" after: ") + session.done();
    }
    return {};
}

// The same as a test.
template <typename Session>
void runSessions(int sessions, int allSteps)
{
    const QString failure = failureIn<Session>(sessions, allSteps);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
}

} // namespace ORVTListview
