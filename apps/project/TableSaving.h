#pragma once

#include "project/ProgramEntries.h"
#include "project/ProjectRow.h"

#include <QtCore/QByteArray>

namespace ORVTListview {

// The tables of a project and the list of its programs at one moment, as its file has them
// and as it is to have them: a value, which any thread can take.
struct TableSaving
{
    QString fileName; // in what is told
    ProjectTables saved;
    ProjectTables now;
    QList<ProgramEntry> savedPrograms;
    QList<ProgramEntry> programs;

    // The text of the project's file with those of now; it keeps its layout. A table or list
    // that is another one in the file meanwhile raises Error, unless it is to be overwritten.
    enum class Theirs { Kept, Overwritten };
    QByteArray into(const QByteArray &json, Theirs theirs) const;

    friend bool operator==(const TableSaving &, const TableSaving &) = default;
};

} // namespace ORVTListview
