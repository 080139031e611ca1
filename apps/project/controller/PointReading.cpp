#include "project/controller/PointReading.h"

#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

PointReading::PointReading(ProjectDocument &document, Controller &controller, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_controller(&controller)
{
    m_cycle.setSingleShot(true);
    connect(&m_cycle, &QTimer::timeout, this, [this] {
        const auto &all = projectTypes();
        ask(QSet<LwType>(all.cbegin(), all.cend()), false);
    });
    connect(&controller, &Controller::answered, this, &PointReading::take);
    connect(&controller, &Controller::failed, this, &PointReading::fail);
    connect(&controller, &Controller::ended, this, &PointReading::end);
    connect(&controller, &QObject::destroyed, this,
            [this] { fail(m_question.number, tr("The controller is gone")); });
    connect(&document, &ProjectDocument::projectReplaced, this, &PointReading::drop);
    connect(&document, &ProjectDocument::tablesChanged, this, [this] { m_rows.reset(); });
}

PointRows &PointReading::rows() const
{
    if (!m_rows)
        m_rows.emplace(*m_document.project());
    return *m_rows;
}

QSet<LwType> PointReading::typesFor(LwType type)
{
    QSet<LwType> types;
    for (const LwType each : projectTypes()) {
        const bool isMeant = type == dsCode ? isVocabularyType(each) : each == type;
        if (isMeant && valueColumn(each) >= 0)
            types.insert(each);
    }
    return types;
}

bool PointReading::canRead(LwType type) const
{
    const QSet<LwType> types = typesFor(type);
    return m_document.project() && std::any_of(types.cbegin(), types.cend(), [this](LwType each) {
               return !m_document.project()->rows(each).isEmpty();
           });
}

QVariant PointReading::valueOf(const AskedPoint &point) const
{
    const qsizetype row = m_document.project() ? rows().rowOf(point) : -1;
    return row < 0 ? QVariant()
                   : m_document.project()
                         ->rows(point.type)
                         .at(row)
                         .cells.value(valueColumn(point.type));
}

// Asking.

void PointReading::read(LwType type)
{
    if (canRead(type))
        want(typesFor(type));
}

void PointReading::readAll()
{
    const auto &all = projectTypes();
    want(QSet<LwType>(all.cbegin(), all.cend()));
}

void PointReading::want(const QSet<LwType> &types)
{
    if (!m_question.isOpen) {
        ask(types, true);
        return;
    }
    QSet<LwType> others = types;
    others.subtract(m_question.types);
    m_waiting.unite(others);
    if (!std::exchange(m_question.isWanted, true))
        Q_EMIT begun();
}

// The points of a type, which are waited for from now on.
QList<AskedPoint> PointReading::open(LwType type)
{
    QList<AskedPoint> points;
    const QList<ProjectRow> &list = m_document.project()->rows(type);
    for (qsizetype row = 0; valueColumn(type) >= 0 && row < list.size(); ++row) {
        points.append(PointRows::pointOf(type, row, list.at(row)));
        m_question.open.insert(points.constLast(), list.at(row));
    }
    return points;
}

void PointReading::ask(const QSet<LwType> &types, bool isWanted)
{
    if (!m_document.project() || m_question.isOpen)
        return;
    m_cycle.stop();
    m_question = {m_question.number + 1, false, isWanted, types};
    m_question.when = QDateTime::currentMSecsSinceEpoch();
    QList<AskedPoint> points;
    for (const LwType type : projectTypes()) {
        if (types.contains(type))
            points += open(type);
    }
    m_question.asked = points.size();
    if (points.isEmpty()) {
        goOn();
        return;
    }
    m_question.isOpen = true;
    if (isWanted)
        Q_EMIT begun();
    if (m_controller)
        m_controller->ask(m_question.number, points);
    else
        fail(m_question.number, tr("The controller is gone"));
}

// Answers.

void PointReading::take(quint64 question, const QList<PointAnswer> &answers)
{
    if (!m_question.isOpen || question != m_question.number)
        return;
    QList<AskedPoint> taken;
    for (const PointAnswer &answer : answers) {
        if (takeOne(answer))
            taken.append(answer.point);
    }
    Q_EMIT valuesRead(taken);
}

bool PointReading::takeOne(const PointAnswer &answer)
{
    const auto asked = m_question.open.constFind(answer.point);
    if (asked == m_question.open.cend()) {
        m_question.faults.append(
            tr("It answered for \"%1\", which was not asked for").arg(answer.point.name));
        return false;
    }
    const ProjectRow before = m_question.open.value(answer.point); // it goes from there
    const QString fault = faultOf(answer.point, before, answer.value);
    if (!fault.isEmpty()) {
        m_question.faults.append(fault);
        return false;
    }
    m_question.open.erase(asked);
    ++m_question.answered;
    const LwType type = answer.point.type;
    const qsizetype row = rows().rowOf(answer.point);
    // A row without a name is known by what it holds.
    const bool isThere = row >= 0 && (!answer.point.name.isEmpty() ||
                                      m_document.project()->rows(type).at(row) == before);
    if (isThere)
        m_document.project()->setReading(type, row, valueColumn(type), answer.value);
    m_old.remove(answer.point);
    return isThere;
}

QString PointReading::faultOf(const AskedPoint &point, const ProjectRow &row,
                              const QVariant &value) const
{
    const bool isNumber = value.typeId() == QMetaType::Double && std::isfinite(value.toDouble());
    const bool isText = value.typeId() == QMetaType::QString;
    const QVariant before = row.cellsOfFile().value(valueColumn(point.type));
    if (isNumber || (isText && before.typeId() != QMetaType::Double))
        return {};
    const QString name = point.name.isEmpty() ? QString::number(point.number) : point.name;
    return tr("%1: \"%2\" is not a number").arg(name, value.toString());
}

// The end.

QString PointReading::fault() const
{
    const QStringList &all = m_question.faults;
    return all.size() < 2 ? all.value(0)
                          : tr("%1, and %2 more").arg(all.first(), QString::number(all.size() - 1));
}

void PointReading::fail(quint64 question, const QString &reason)
{
    if (!m_question.isOpen || question != m_question.number)
        return;
    m_question.faults.prepend(reason);
    finish();
}

void PointReading::end(quint64 question)
{
    if (!m_question.isOpen || question != m_question.number)
        return;
    if (!m_question.open.isEmpty() && m_question.faults.isEmpty())
        m_question.faults.append(tr("Values are missing"));
    finish();
}

void PointReading::finish()
{
    m_question.isOpen = false;
    const QList<AskedPoint> missed = m_question.open.keys();
    m_old.unite(QSet<AskedPoint>(missed.cbegin(), missed.cend()));
    const QPointer<PointReading> self(this);
    Q_EMIT ended(missed);
    if (self)
        goOn();
}

void PointReading::stop()
{
    if (!m_question.isOpen)
        return;
    m_waiting.clear();
    m_question.isOpen = false;
    if (m_controller)
        m_controller->cancel(m_question.number);
    const QPointer<PointReading> self(this);
    Q_EMIT ended({});
    if (self)
        goOn();
}

void PointReading::goOn()
{
    if (m_question.isOpen)
        return;
    if (!m_waiting.isEmpty())
        ask(std::exchange(m_waiting, {}), true);
    else if (isCyclic() && m_document.project())
        m_cycle.start(m_pause);
}

void PointReading::drop()
{
    const bool wasOpen = std::exchange(m_question.isOpen, false);
    if (wasOpen && m_controller)
        m_controller->cancel(m_question.number);
    m_question = {m_question.number};
    m_waiting.clear();
    m_old.clear();
    m_rows.reset();
    Q_EMIT dropped();
    goOn();
}

void PointReading::setPause(std::chrono::milliseconds pause)
{
    if (std::exchange(m_pause, pause) == pause)
        return;
    m_cycle.stop();
    goOn();
}

} // namespace ORVTListview
