#include "PointValues.h"

#include "base/TextRules.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/controller/PointReading.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/HoverAnswer.h>
#include <ORVTListview/ORVListView.h>

#include <algorithm>
#include <array>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array vocabulary{dsConst, dsInput, dsOutput, dsVariable, dsNvi};

QVariant cellOf(const ProjectRow &row, LwType type, const QString &key)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    const auto column = std::find_if(columns.cbegin(), columns.cend(),
                                     [&](const ProjectColumn &each) { return each.key == key; });
    return column == columns.cend() ? QVariant() : row.cells.value(column - columns.cbegin());
}

} // namespace

PointValues::PointValues(ProgramViews &programs, PointReading &reading, QObject *parent)
    : QObject(parent)
    , m_programs(programs)
{
    programs.withEach(this, [this](qint32, ORVListView &list) {
        CodeView &view = *list.codeView();
        connect(&view, &CodeView::hoverAsked, this,
                [this](const QString &word, qint32, HoverAnswer *told) { answer(word, told); });
        describeWords(view);
        feed(view);
    });
    connect(&reading, &PointReading::ended, this, &PointValues::takeValues);
}

void PointValues::setProject(const Project *project)
{
    m_project = project;
    takeProject();
}

// Of two points with one name the program means the first of these.
void PointValues::collect()
{
    m_points.clear();
    for (const LwType type : vocabulary) {
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
}

void PointValues::takeValues()
{
    if (!m_project)
        return;
    collect();
    m_programs.forEach([this](CodeView &view) { feed(view); });
}

void PointValues::takeProject()
{
    collect();
    tellAll();
}

void PointValues::tellAll()
{
    m_programs.forEach([this](CodeView &view) {
        describeWords(view);
        feed(view);
    });
}

void PointValues::describeWords(CodeView &view) const
{
    QHash<QString, QString> descriptions;
    for (const Told &point : m_points)
        descriptions.insert(point.name, point.description);
    view.setWordDescriptions(descriptions);
}

void PointValues::feed(CodeView &view) const
{
    QHash<QString, QString> values;
    for (const Told &point : std::as_const(m_points)) {
        const QString value = cellText(point.value);
        if (!value.isEmpty())
            values.insert(point.name, point.unit.isEmpty() ? value : value + u' ' + point.unit);
    }
    view.setLiveValues(values);
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
