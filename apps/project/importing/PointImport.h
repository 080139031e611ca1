#pragma once

#include "project/ProjectChange.h"

#include <QtCore/QStringList>

namespace ORVTListview {

class Project;

// What is to become of one row that comes from elsewhere.
struct ImportedRow
{
    enum Fate { Added, Changed, Same, Faulty };

    Fate fate = Same;
    QString fault;                 // a sentence without its point
    qsizetype row = -1;            // of the table, from 0; -1 for a new one
    ProjectRow point;              // as it will be
    QList<qsizetype> changed = {}; // columns of projectColumns(type)
};

// How the columns of a text belong to those of a table.
struct ImportColumns
{
    LwType type = dsCode;
    QList<qsizetype> sources; // for each of projectColumns(type) the text's column; -1 for none
    qsizetype number = -1;    // the text's column of the rows' numbers; -1 for none
};

// By the heads of a text: a column's title (of titles, as users see them), its English name
// or that in the project's file, in any letter case; "#" is the row's number. Columns that
// have no such head come from none.
ImportColumns columnsByNames(LwType type, const QStringList &heads, const QStringList &titles);

// The columns in their own order, as an exported table has them: the row's number first.
ImportColumns columnsInOrder(LwType type);

// Reads rows of cells for a table. Points are known by their names, in any letter case;
// where they have none, by the row's number. What is not in the text stays. Decimal signs
// are points, or commas with no other one. `yes` and `no` are these words as users see them.
QList<ImportedRow> importedRows(const Project &project, const QList<QStringList> &cells,
                                const ImportColumns &columns, const QStringList &yesAndNo);

// The rows with these fates and this index in the list, as one step.
RowChanges importChanges(const Project &project, LwType type, const QList<ImportedRow> &rows,
                         const QList<bool> &isTicked);

} // namespace ORVTListview
