#pragma once

#include "project/ProjectRow.h"

#include <QtCore/QByteArray>

namespace ORVTListview {

// The tables of a project at one moment, as its file has them and as it is to have them: a
// value, which any thread can take.
struct TableSaving
{
    QString fileName; // in what is told
    ProjectTables saved;
    ProjectTables now;

    // The text of the project's file with the tables of now; it keeps its layout. A table
    // that is another one in the file meanwhile raises Error, unless it is to be overwritten.
    enum class Theirs { Kept, Overwritten };
    QByteArray into(const QByteArray &json, Theirs theirs) const;

    friend bool operator==(const TableSaving &, const TableSaving &) = default;
};

} // namespace ORVTListview
