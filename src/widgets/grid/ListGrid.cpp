#include <ORVTListview/ListGrid.h>

#include "base/EventGuard.h"
#include "pointtable/rules/ReadyCellRules.h"
#include "shared/points/DisplayNames.h"
#include "widgets/grid/GridParts.h"

#include <QtCore/QPointer>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ListGrid::ListGrid(std::unique_ptr<GridParts> parts)
    : d(std::move(parts))
{
    d->writer.setHost({.ask =
                           [this](ListItem *item, int column, QString &text, QString &refusal) {
                               return raiseEvent(*this, &ListGrid::cellEntering, item,
                                                 static_cast<qint16>(column), text, refusal);
                           },
                       .tell =
                           [this](const QList<CellChange> &changes) {
                               raiseEvent(*this, &ListGrid::cellsChanged, changes);
                           }});
    d->edit.setRefusal([this](const QList<CellRefusal> &refusals) {
        raiseEvent(*this, &ListGrid::cellsRefused, refusals);
    });
    d->rules.setFollower([this] { d->followRules(); });
    connect(d->view.model(), &QAbstractItemModel::modelReset, this, [this] {
        d->note.hide();
        d->steps.forget();
    });
}

ListGrid::~ListGrid() = default;

bool ListGrid::editsCells() const
{
    return d->rules.isOn();
}

void ListGrid::setEditsCells(bool on)
{
    if (on == editsCells())
        return;
    d->rules.setOn(on);
    d->fitHandle();
    raiseEvent(*this, &ListGrid::editsCellsChanged, on);
}

bool ListGrid::selectsCells() const
{
    return d->selection.isByCells();
}

void ListGrid::setSelectsCells(bool on)
{
    if (on == selectsCells())
        return;
    d->selection.setByCells(on);
    d->fitHandle();
    raiseEvent(*this, &ListGrid::selectsCellsChanged, on);
}

void ListGrid::copyCells(bool withHeaders) const
{
    d->table.settle();
    d->clipboard.copy(withHeaders);
}

bool ListGrid::pasteCells()
{
    d->table.settle();
    return d->rules.isOn() && !d->writer.isAsking() && d->clipboard.paste();
}

QString ListGrid::table() const
{
    return d->rules.tableName();
}

void ListGrid::setTable(const QString &table)
{
    if (table != this->table())
        d->rules.setTableName(table);
}

void ListGrid::setRules(const QString &table, const QHash<QString, CellRule> &rules)
{
    d->rules.set(table, rules);
}

QHash<QString, CellRule> ListGrid::rules(const QString &table) const
{
    return d->rules.of(table);
}

void ListGrid::useReadyRules()
{
    for (qint32 type = lowestType; type <= highestType; ++type)
        d->rules.set(displayName(type), readyCellRules(type));
}

CellRule ListGrid::rule(qint16 column) const
{
    return d->rules.rule(column);
}

void ListGrid::setPointNames(const PointNames &names)
{
    d->rules.setPointNames(names);
}

bool ListGrid::editCell(ListItem *item, qint16 column)
{
    d->table.check(item, u"ListGrid.editCell"_s);
    return d->edit.openFor(item, column);
}

bool ListGrid::enterText(ListItem *item, qint16 column, const QString &text)
{
    d->table.check(item, u"ListGrid.enterText"_s);
    return d->table.placeOf(item, column).isValid() && !d->writer.isAsking() &&
           d->edit.enter({{item, column, text}});
}

QUndoStack *ListGrid::undoStack() const
{
    return &d->steps.stack();
}

void ListGrid::setUndoStack(QUndoStack *stack)
{
    d->steps.setStack(stack);
}

} // namespace ORVTListview
