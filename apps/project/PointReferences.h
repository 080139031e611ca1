#pragma once

#include "project/ProjectColumns.h"

#include <QtCore/QList>

namespace ORVTListview {

class Project;
struct OtherUses;

// A cell of a table that names a point of the program: the input of a controller, what a
// log records.
struct PointReference
{
    LwType type = dsCode;
    qsizetype row = 0;
    qsizetype column = 0; // of projectColumns(type)

    friend bool operator==(const PointReference &, const PointReference &) = default;
};

// Of a name, in any letter case, in the order of the types.
QList<PointReference> referencesTo(const Project &project, const QString &name);

// What the tables read, and what is set by hand.
OtherUses otherUsesOf(const Project &project);

} // namespace ORVTListview
