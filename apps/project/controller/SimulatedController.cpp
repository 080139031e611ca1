#include "project/controller/SimulatedController.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostInAnAnswer = 50;

// A point that was just added has no value yet, but no controller has none to tell.
QVariant known(const QVariant &value)
{
    return value.toString().isEmpty() ? QVariant(0.0) : value;
}

} // namespace

SimulatedController::SimulatedController(LastValue last, QObject *parent)
    : Controller(parent)
    , m_last(std::move(last))
{
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &SimulatedController::answer);
}

void SimulatedController::setBehaviour(const SimulatedBehaviour &behaviour)
{
    m_behaviour = behaviour;
}

void SimulatedController::ask(quint64 question, const QList<AskedPoint> &points)
{
    m_question = question;
    m_points = points;
    m_told = 0;
    m_pause.start(m_behaviour.delay);
}

void SimulatedController::cancel(quint64 question)
{
    if (question == m_question)
        m_pause.stop();
}

// A receiver may ask anew, call it off, or end all this.
void SimulatedController::answer()
{
    if (isToFail()) {
        fail();
        return;
    }
    const quint64 question = m_question;
    m_pause.start(m_behaviour.delay);
    const QPointer<SimulatedController> self(this);
    Q_EMIT answered(question, nextAnswers());
    const bool isOpen = self && m_question == question && m_pause.isActive();
    if (!isOpen || m_told < m_points.size())
        return;
    m_pause.stop();
    Q_EMIT ended(question);
}

bool SimulatedController::isToFail() const
{
    const bool isHalf = m_told * 2 >= m_points.size();
    return m_behaviour.failure != SimulatedBehaviour::Answers &&
           (m_behaviour.failure != SimulatedBehaviour::Breaks || isHalf);
}

void SimulatedController::fail()
{
    switch (m_behaviour.failure) {
    case SimulatedBehaviour::Refuses:
        Q_EMIT failed(m_question, tr("The controller refuses to tell its values"));
        break;
    case SimulatedBehaviour::Breaks:
        Q_EMIT failed(m_question, tr("The controller has stopped answering"));
        break;
    default:
        Q_EMIT failed(m_question, tr("The controller cannot be reached"));
    }
}

QList<PointAnswer> SimulatedController::nextAnswers()
{
    const qsizetype part = std::clamp<qsizetype>((m_points.size() + 3) / 4, 1, mostInAnAnswer);
    const qsizetype end = std::min(m_told + part, m_points.size());
    QList<PointAnswer> answers;
    for (; m_told < end; ++m_told) {
        const AskedPoint &point = m_points.at(m_told);
        const QVariant last = known(m_last(point));
        answers.append({point, point.type == dsConst ? last : m_drift.next(last)});
    }
    mistake(answers);
    return answers;
}

void SimulatedController::mistake(QList<PointAnswer> &answers) const
{
    if (answers.isEmpty())
        return;
    switch (m_behaviour.mistake) {
    case SimulatedBehaviour::NoMistake:
        break;
    case SimulatedBehaviour::TextForNumber:
        answers.first().value = u"###"_s;
        break;
    case SimulatedBehaviour::TooFew:
        answers.removeLast();
        break;
    case SimulatedBehaviour::UnknownPoint:
        answers.append({{answers.constFirst().point.type, u"Unknown"_s, 0}, 1.0});
        break;
    }
}

} // namespace ORVTListview
