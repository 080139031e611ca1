#pragma once

#include "project/controller/Controller.h"
#include "project/controller/DriftingValue.h"

#include <QtCore/QTimer>

#include <functional>

namespace ORVTListview {

// How a simulated controller behaves.
struct SimulatedBehaviour
{
    enum Failure { Answers, CannotBeReached, Refuses, Breaks };
    enum Mistake { NoMistake, TextForNumber, TooFew, UnknownPoint };

    int delay = 150; // milliseconds before each answer
    Failure failure = Answers;
    Mistake mistake = NoMistake;

    friend bool operator==(const SimulatedBehaviour &, const SimulatedBehaviour &) = default;
};

// Stands for the controller that a programming tool reads its values from: each reading is
// a little beside the last one, constants excepted. It answers a question in four parts, or
// more for many points.
class SimulatedController : public Controller
{
    Q_OBJECT

public:
    // What a point's value was last; invalid for none.
    using LastValue = std::function<QVariant(const AskedPoint &)>;

    explicit SimulatedController(LastValue last, QObject *parent = nullptr);

    SimulatedBehaviour behaviour() const { return m_behaviour; }

    // Counts from the next answer on.
    void setBehaviour(const SimulatedBehaviour &behaviour);

    void ask(quint64 question, const QList<AskedPoint> &points) override;
    void cancel(quint64 question) override;

private:
    void answer();
    void fail();
    bool isToFail() const;
    QList<PointAnswer> nextAnswers();
    void mistake(QList<PointAnswer> &answers) const;

    LastValue m_last;
    DriftingValue m_drift;
    SimulatedBehaviour m_behaviour;
    QTimer m_pause;
    quint64 m_question = 0;
    QList<AskedPoint> m_points;
    qsizetype m_told = 0; // of these
};

} // namespace ORVTListview
