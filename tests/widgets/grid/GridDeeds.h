#pragma once

#include <QtCore/QList>

class TwoTables;

// What users and hosts do to a grid, each to a list and to a plain table.
struct GridDeed
{
    const char *name;
    void (*act)(TwoTables &tables);
};

const QList<GridDeed> &gridDeeds();

// The deeds on cells, rows, and what is seen of them.
QList<GridDeed> cellDeeds();
QList<GridDeed> rowDeeds();
QList<GridDeed> viewDeeds();
