// What is done to rows, by the host and by the user.

#include "widgets/grid/GridDeeds.h"
#include "widgets/grid/TwoTables.h"
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>

#include <QtTest/QTest>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr int usualRows = TwoTables::usualRows;
constexpr int manyRows = 20;

int rowCount(const TwoTables &tables)
{
    return static_cast<int>(tables.plain.rows.size());
}

void insertRow(TwoTables &tables)
{
    tables.insertRow(tables.below(rowCount(tables) + 1));
}

void removeRow(TwoTables &tables)
{
    if (rowCount(tables) <= usualRows)
        return;
    const int row = tables.below(rowCount(tables));
    tables.list.ListItems()->Remove(row + 1);
    tables.plain.remove(row);
}

void replace(TwoTables &tables)
{
    QList<PlainTable::Row> rows(usualRows);
    for (PlainTable::Row &row : rows) {
        for (QString &cell : row.cells)
            cell = tables.text();
    }
    tables.replace(rows);
}

QList<int> names(const TwoTables &tables, const QList<int> &places)
{
    QList<int> names;
    for (const int place : places)
        names.append(tables.plain.shown.at(place));
    return names;
}

QList<int> positions(const TwoTables &tables, const QList<int> &places)
{
    QList<int> positions;
    for (const int name : names(tables, places))
        positions.append(tables.plain.positionOf(name));
    std::sort(positions.begin(), positions.end());
    return positions;
}

void remove(TwoTables &tables)
{
    const auto block = rowCount(tables) < usualRows ? std::nullopt : tables.choose();
    if (!block)
        return;
    QTest::keyClick(&tables.list, Qt::Key_Minus, Qt::ControlModifier);
    if (tables.refusesRows)
        return;
    for (const int name : names(tables, block->rows))
        tables.plain.remove(tables.plain.positionOf(name));
    tables.rowsWereEdited();
}

void add(TwoTables &tables)
{
    const auto block = rowCount(tables) > manyRows ? std::nullopt : tables.choose();
    if (!block)
        return;
    QTest::keyClick(&tables.list, Qt::Key_Plus, Qt::ControlModifier);
    if (tables.refusesRows)
        return;
    tables.plain.insert(positions(tables, block->rows).last() + 1);
    tables.rowsWereEdited();
}

void duplicate(TwoTables &tables)
{
    const auto block = rowCount(tables) > manyRows ? std::nullopt : tables.choose();
    if (!block)
        return;
    QTest::keyClick(&tables.list, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
    if (tables.refusesRows)
        return;
    int position = positions(tables, block->rows).last() + 1;
    for (const int name : names(tables, block->rows)) {
        const PlainTable::Row like = tables.plain.rowNamed(name);
        tables.plain.insert(position);
        PlainTable::Row &made = tables.plain.rows[position++];
        made.cells = like.cells;
        made.states = like.states;
    }
    tables.rowsWereEdited();
}

void move(TwoTables &tables, Qt::Key key, int step)
{
    const auto block = tables.choose();
    if (!block)
        return;
    QTest::keyClick(&tables.list, key, Qt::AltModifier);
    const QList<int> moved = positions(tables, block->rows);
    const bool fits = moved.first() + step >= 0 && moved.last() + step < rowCount(tables);
    if (tables.plain.isArranged() || !fits || tables.refusesRows)
        return;
    tables.plain.move(moved, step);
    tables.rowsWereEdited();
}

void moveUp(TwoTables &tables)
{
    move(tables, Qt::Key_Up, -1);
}

void moveDown(TwoTables &tables)
{
    move(tables, Qt::Key_Down, 1);
}

} // namespace

QList<GridDeed> rowDeeds()
{
    return {{"insertRow", insertRow}, {"removeRow", removeRow}, {"replace", replace},
            {"remove", remove},       {"remove", remove},       {"add", add},
            {"duplicate", duplicate}, {"moveUp", moveUp},       {"moveDown", moveDown}};
}
