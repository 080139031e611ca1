#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

// One row of a point table.
struct ProjectRow
{
    QString name;             // empty where the type's points have none
    qint32 data = 0;          // the host's value of a point
    QVariantList cells;       // one for each of projectColumns(): QString, double, bool or invalid
    QVariantList kept;        // the cells for the file, where the controller has told others
    bool isDataGiven = false; // by the file; data left out there follows the row's number

    const QVariantList &cellsOfFile() const { return kept.isEmpty() ? cells : kept; }

    // Shows what the controller told; the file keeps what it has.
    void setReading(qsizetype column, const QVariant &cell)
    {
        if (kept.isEmpty())
            kept = cells;
        cells[column] = cell;
    }

    void setCell(qsizetype column, const QVariant &cell)
    {
        cells[column] = cell;
        if (!kept.isEmpty())
            kept[column] = cell;
    }

    // Shows what was read for cells that are the same in the file.
    void takeReadings(const ProjectRow &former)
    {
        for (qsizetype i = 0; !former.kept.isEmpty() && i < cells.size(); ++i) {
            const QVariant &own = cellsOfFile().at(i);
            if (former.kept.value(i) == own && former.cells.at(i) != cells.at(i))
                setReading(i, former.cells.at(i));
        }
    }

    // What the file has of them; readings are none of it.
    friend bool operator==(const ProjectRow &one, const ProjectRow &other)
    {
        return one.name == other.name && one.data == other.data &&
               one.cellsOfFile() == other.cellsOfFile();
    }
};

using ProjectTables = QHash<LwType, QList<ProjectRow>>;

} // namespace ORVTListview
