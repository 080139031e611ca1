#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>

#include <QtGui/QUndoStack>
#include <QtWidgets/QMenu>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Grid = ListGrid;

// Hosts without types give and get the keys as lists of a column and an order.
QVariantList sortKeys(const Grid &grid)
{
    QVariantList keys;
    for (const auto &[column, order] : grid.sortKeys())
        keys.append(QVariant(QVariantList{column, qint32{order}}));
    return keys;
}

void setSortKeys(Grid &grid, const QVariantList &keys)
{
    Grid::SortKeys typed;
    for (const QVariant &key : keys) {
        const QVariantList parts = key.toList();
        if (parts.size() != 2)
            throw Error(TypeMismatch, u"ListGrid.sortKeys"_s,
                        u"A column and an order are needed"_s);
        const bool isDown = parts.at(1).toInt() == Qt::DescendingOrder;
        typed.append({static_cast<qint16>(parts.at(0).toInt()),
                      isDown ? Qt::DescendingOrder : Qt::AscendingOrder});
    }
    grid.setSortKeys(typed);
}

// Hosts without types know nothing of const.
CellState cellState(const Grid &grid, ListItem *item, qint16 column)
{
    return grid.cellState(item, column);
}

void setCellState(Grid &grid, ListItem *item, qint16 column, CellState state)
{
    grid.setCellState(item, column, state);
}

QList<Member> cellMembers()
{
    return {
        property<Grid, "editsCells">(),
        property<Grid, "selectsCells">(),
        method<&Grid::copyCells>(u"copyCells", optional(u"withHeaders")),
        invokable<Grid, "pasteCells">(),
        readWrite<&Grid::table, &Grid::setTable>(u"table"),
        method<&Grid::setRules>(u"setRules", u"table", u"rules"),
        method<&Grid::rules>(u"rules", u"table"),
        method<&Grid::useReadyRules>(u"useReadyRules"),
        method<&Grid::rule>(u"rule", u"column"),
        method<&Grid::editCell>(u"editCell", u"item", u"column"),
        method<&Grid::enterText>(u"enterText", u"item", u"column", u"text"),
        readWrite<&Grid::undoStack, &Grid::setUndoStack>(u"undoStack"),
        method<&cellState>(u"cellState", u"item", u"column"),
        method<&setCellState>(u"setCellState", u"item", u"column", u"state"),
        property<Grid, "showsLocalNumbers">(),
        property<Grid, "flashesChanges">(),
    };
}

QList<Member> rowMembers()
{
    return {
        property<Grid, "sortsRows">(),
        readWrite<&sortKeys, &setSortKeys>(u"sortKeys"),
        property<Grid, "filterPlace">(),
        method<&Grid::filterText>(u"filterText", u"column"),
        method<&Grid::setFilterText>(u"setFilterText", u"column", u"text"),
        readOnly<&Grid::rowsShown>(u"rowsShown"),
        invokable<Grid, "arrangeRows">(),
    };
}

QList<Member> rowCommands()
{
    return properties<Grid, "editsRows">() +
           invokables<Grid, "addRow", "removeRows", "duplicateRows", "moveRowsUp",
                      "moveRowsDown">();
}

QList<Member> columnMembers()
{
    return {
        property<Grid, "arrangesColumns">(),
        method<&Grid::columnLayout>(u"columnLayout", u"table"),
        method<&Grid::setColumnLayout>(u"setColumnLayout", u"table", u"layout"),
        property<Grid, "keepsFirstColumns">(),
        invokable<Grid, "fitColumn">(),
        property<Grid, "hasMenu">(),
    };
}

QList<Member> events()
{
    return {
        raises<&Grid::rowsEditing>(1, u"rowsEditing", u"deed", u"rows", u"refusal"),
        raises<&Grid::rowsEdited>(2, u"rowsEdited", u"deed", u"rows"),
        raises<&Grid::columnsArranged>(3, u"columnsArranged"),
        raises<&Grid::menuOpening>(4, u"menuOpening", u"menu"),
        raises<&Grid::rowsArranged>(5, u"rowsArranged"),
        raises<&Grid::cellEntering>(6, u"cellEntering", u"item", u"column", u"text", u"refusal"),
        raises<&Grid::cellsChanged>(7, u"cellsChanged", u"changes"),
        raises<&Grid::cellsRefused>(8, u"cellsRefused", u"refusals"),
    };
}

QList<MemberFacts> facts()
{
    const QList<qint32> ofRow{InvalidCall, ObjectNotSet};
    const QString column = u"column: from 0"_s;
    return {
        {.name = u"rule"_s, .range = column},
        {.name = u"editCell"_s, .range = column, .failures = ofRow},
        {.name = u"enterText"_s, .range = column, .failures = ofRow},
        {.name = u"cellState"_s, .range = column, .failures = ofRow},
        {.name = u"setCellState"_s, .range = column, .failures = ofRow},
        {.name = u"sortKeys"_s, .range = column, .failures = {TypeMismatch}},
        {.name = u"filterText"_s, .range = u"column: from 0, or -1 for any"_s},
        {.name = u"setFilterText"_s, .range = u"column: from 0, or -1 for any"_s},
        {.name = u"rowsShown"_s, .unit = u"rows"_s},
        {.name = u"fitColumn"_s, .range = column},
    };
}

const HandedClass handed(QMetaType::fromType<ListGrid *>(),
                         &together<cellMembers, rowMembers, rowCommands, columnMembers, events>,
                         &facts);

} // namespace

} // namespace ORVTListview
