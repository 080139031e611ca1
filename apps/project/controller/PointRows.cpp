#include "project/controller/PointRows.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"

namespace ORVTListview {

using namespace Qt::StringLiterals;

PointRows::PointRows(const Project &project)
    : m_project(project)
{
}

AskedPoint PointRows::pointOf(LwType type, qsizetype row, const ProjectRow &point)
{
    const bool hasName = !point.name.isEmpty();
    return {type, point.name, hasName ? 0 : static_cast<qint32>(row) + 1};
}

const QHash<QString, qsizetype> &PointRows::names(LwType type)
{
    auto found = m_names.find(type);
    if (found != m_names.end())
        return *found;
    found = m_names.insert(type, {});
    const QList<ProjectRow> &rows = m_project.rows(type);
    found->reserve(rows.size());
    for (qsizetype row = 0; row < rows.size(); ++row)
        found->insert(rows.at(row).name, row);
    return *found;
}

qsizetype PointRows::rowOf(const AskedPoint &point)
{
    if (!point.name.isEmpty())
        return names(point.type).value(point.name, -1);
    const qsizetype row = point.number - 1;
    const QList<ProjectRow> &rows = m_project.rows(point.type);
    return row >= 0 && row < rows.size() && rows.at(row).name.isEmpty() ? row : -1;
}

qsizetype valueColumn(LwType type)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (columns.at(column).key == u"Value"_s)
            return column;
    }
    return -1;
}

} // namespace ORVTListview
