#pragma once

#include "project/controller/Controller.h"

#include <QtCore/QHash>

namespace ORVTListview {

class Project;
struct ProjectRow;

// Finds the rows of points; for one state of the tables.
class PointRows
{
public:
    // The project outlives it.
    explicit PointRows(const Project &project);

    // The point of a row.
    static AskedPoint pointOf(LwType type, qsizetype row, const ProjectRow &point);

    // From 0; -1 when there is none.
    qsizetype rowOf(const AskedPoint &point);

private:
    const QHash<QString, qsizetype> &names(LwType type);

    const Project &m_project;
    QHash<LwType, QHash<QString, qsizetype>> m_names; // of the types that were asked for
};

// The column of the values that a controller tells, of projectColumns(type); -1 for none.
qsizetype valueColumn(LwType type);

} // namespace ORVTListview
