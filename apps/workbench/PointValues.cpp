#include "PointValues.h"

#include "base/TextRules.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/HoverAnswer.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

QVariant cellOf(const ProjectRow &row, LwType type, const QString &key)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    const auto column = std::find_if(columns.cbegin(), columns.cend(),
                                     [&](const ProjectColumn &each) { return each.key == key; });
    return column == columns.cend() ? QVariant() : row.cells.value(column - columns.cbegin());
}

} // namespace

PointValues::PointValues(CodeView &view, QObject *parent)
    : QObject(parent)
    , m_view(view)
{
    connect(&m_view, &CodeView::hoverAsked, this,
            [this](const QString &word, qint32, HoverAnswer *told) { answer(word, told); });
    connect(&m_second, &QTimer::timeout, this, &PointValues::askController);
    m_second.start(1s);
}

void PointValues::setProject(const Project *project)
{
    m_project = project;
    takeProject();
}

// Of two points with one name the program means the first of these.
void PointValues::takeProject()
{
    m_points.clear();
    for (const LwType type : {dsConst, dsInput, dsOutput, dsVariable, dsNvi}) {
        for (const ProjectRow &row : m_project->rows(type)) {
            const QString key = foldedCase(row.name);
            const QVariant value = cellOf(row, type, u"Value"_s);
            const bool isNumber = value.typeId() == QMetaType::Double; // "Off/On" is no unit
            if (!m_points.contains(key))
                m_points.insert(key,
                                {row.name, type, value,
                                 isNumber ? cellOf(row, type, u"Units"_s).toString() : QString(),
                                 cellOf(row, type, u"Description"_s).toString()});
        }
    }
    describeWords();
    feed();
}

void PointValues::describeWords()
{
    QHash<QString, QString> descriptions;
    for (const Told &point : std::as_const(m_points))
        descriptions.insert(point.name, point.description);
    m_view.setWordDescriptions(descriptions);
}

void PointValues::askController()
{
    if (!m_view.liveValuesShown())
        return;
    for (Told &point : m_points) {
        if (point.type != dsConst)
            point.value = m_controller.reading(point.value);
    }
    feed();
}

void PointValues::feed()
{
    QHash<QString, QString> values;
    for (const Told &point : std::as_const(m_points)) {
        const QString value = cellText(point.value);
        if (!value.isEmpty())
            values.insert(point.name, point.unit.isEmpty() ? value : value + u' ' + point.unit);
    }
    m_view.setLiveValues(values);
}

void PointValues::answer(const QString &word, HoverAnswer *answer) const
{
    const auto point = m_points.constFind(foldedCase(word));
    if (point == m_points.cend())
        return;
    answer->setName(point->name);
    answer->setKind(point->type);
    answer->setValue(cellText(point->value));
    answer->setUnit(point->unit);
    answer->setDescription(point->description);
}

} // namespace ORVTListview
