#include <ORVTListview/ListGrid.h>

#include "base/EventGuard.h"
#include "pointtable/rules/ReadyCellRules.h"
#include "shared/points/DisplayNames.h"
#include "widgets/grid/GridParts.h"
#include <ORVTListview/PropertyBag.h>

#include <QtCore/QMetaMethod>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtCore/QUrl>
#include <QtWidgets/QMenu>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1String otherLayouts("ColumnLayouts"); // which tables there are besides the types

// Those of the types, of layouts and of a text of otherLayouts.
QSet<QString> tableNames(const QHash<QString, QString> &layouts, const QString &others)
{
    QSet<QString> names{QString()};
    for (qint32 type = lowestType; type <= highestType; ++type)
        names.insert(displayName(type));
    for (auto layout = layouts.cbegin(); layout != layouts.cend(); ++layout)
        names.insert(layout.key());
    for (const QString &name : others.split(u';', Qt::SkipEmptyParts))
        names.insert(QUrl::fromPercentEncoding(name.toUtf8()));
    return names;
}

QString layoutName(const QString &table)
{
    return u"ColumnLayouts."_s + table;
}

} // namespace

ListGrid::ListGrid(std::unique_ptr<GridParts> parts)
    : d(std::move(parts))
{
    d->writer.setHost({.listens =
                           [this] {
                               static const QMetaMethod asking =
                                   QMetaMethod::fromSignal(&ListGrid::cellEntering);
                               return isSignalConnected(asking);
                           },
                       .ask =
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
    d->rows.setHost(
        {.ask =
             [this](RowEditing::Deed deed, const QList<qint32> &rows, QString &refusal) {
                 return raiseEvent(*this, &ListGrid::rowsEditing, static_cast<RowDeed>(deed), rows,
                                   refusal);
             },
         .tell =
             [this](RowEditing::Deed deed, const QList<qint32> &rows) {
                 d->order.keepRows();
                 raiseEvent(*this, &ListGrid::rowsEdited, static_cast<RowDeed>(deed), rows);
             }});
    d->columns.setFollower([this] { raiseEvent(*this, &ListGrid::columnsArranged); });
    d->menu.setFollower([this](QMenu &menu) { raiseEvent(*this, &ListGrid::menuOpening, &menu); });
    d->order.setFollower([this] {
        d->filters.refresh();
        raiseEvent(*this, &ListGrid::rowsArranged);
    });
    d->table.setUnseenFollower([this] { d->filters.refresh(); });
    d->rules.setFollower([this] { d->followRules(); });
    connect(d->view.model(), &QAbstractItemModel::modelReset, this, [this] {
        d->note.hide();
        d->steps.forget();
    });
}

ListGrid::~ListGrid()
{
    d->table.setUnseenFollower({});
}

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
    if (table != this->table()) {
        d->rules.setTableName(table);
        d->columns.switchTable(table);
    }
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
    return d->table.isThere(item, column) && !d->writer.isAsking() &&
           d->edit.enter({{item, column, text}});
}

bool ListGrid::sortsRows() const
{
    return d->order.isByHeader();
}

void ListGrid::setSortsRows(bool on)
{
    if (on == sortsRows())
        return;
    d->order.setByHeader(on);
    raiseEvent(*this, &ListGrid::sortsRowsChanged, on);
}

ListGrid::SortKeys ListGrid::sortKeys() const
{
    SortKeys keys;
    for (const SortKey &key : d->order.keys())
        keys.append({static_cast<qint16>(key.column),
                     key.isDescending ? Qt::DescendingOrder : Qt::AscendingOrder});
    return keys;
}

void ListGrid::setSortKeys(const SortKeys &keys)
{
    QList<SortKey> wanted;
    for (const auto &[column, order] : keys)
        wanted.append({column, order == Qt::DescendingOrder});
    d->order.setKeys(wanted);
}

ListGrid::FilterPlace ListGrid::filterPlace() const
{
    return static_cast<FilterPlace>(d->filters.where());
}

void ListGrid::setFilterPlace(FilterPlace place)
{
    if (place == filterPlace())
        return;
    d->filters.setWhere(static_cast<FilterFields::Where>(place));
    const QPointer<ListGrid> self(this);
    d->order.clearFilters();
    if (self)
        raiseEvent(*this, &ListGrid::filterPlaceChanged, place);
}

QString ListGrid::filterText(qint16 column) const
{
    return d->order.filter(column);
}

void ListGrid::setFilterText(qint16 column, const QString &text)
{
    if (column >= anyColumn)
        d->order.setFilter(column, text);
}

qint32 ListGrid::rowsShown() const
{
    return d->view.model()->rowCount();
}

void ListGrid::arrangeRows()
{
    d->order.apply();
}

CellState ListGrid::cellState(const ListItem *item, qint16 column) const
{
    d->table.check(item, u"ListGrid.cellState"_s);
    return d->table.state(item, column);
}

void ListGrid::setCellState(const ListItem *item, qint16 column, CellState state)
{
    d->table.check(item, u"ListGrid.setCellState"_s);
    d->table.setState(item, column, state);
}

bool ListGrid::showsLocalNumbers() const
{
    return d->look.hasLocalNumbers();
}

void ListGrid::setShowsLocalNumbers(bool on)
{
    if (on == showsLocalNumbers())
        return;
    d->look.setLocalNumbers(on);
    raiseEvent(*this, &ListGrid::showsLocalNumbersChanged, on);
}

bool ListGrid::flashesChanges() const
{
    return d->look.flash().isOn();
}

void ListGrid::setFlashesChanges(bool on)
{
    if (on == flashesChanges())
        return;
    d->look.flash().setOn(on);
    raiseEvent(*this, &ListGrid::flashesChangesChanged, on);
}

bool ListGrid::editsRows() const
{
    return d->rows.isOn();
}

void ListGrid::setEditsRows(bool on)
{
    if (on == editsRows())
        return;
    d->rows.setOn(on);
    raiseEvent(*this, &ListGrid::editsRowsChanged, on);
}

bool ListGrid::addRow()
{
    return d->rows.add();
}

bool ListGrid::removeRows()
{
    return d->rows.remove();
}

bool ListGrid::duplicateRows()
{
    return d->rows.duplicate();
}

bool ListGrid::moveRowsUp()
{
    return d->rows.move(-1);
}

bool ListGrid::moveRowsDown()
{
    return d->rows.move(1);
}

bool ListGrid::keepsFirstColumns() const
{
    return d->table.keepsColumns();
}

void ListGrid::setKeepsFirstColumns(bool on)
{
    if (on == keepsFirstColumns())
        return;
    d->table.setKeepsColumns(on);
    d->filters.place();
    raiseEvent(*this, &ListGrid::keepsFirstColumnsChanged, on);
}

bool ListGrid::arrangesColumns() const
{
    return d->columns.isOn();
}

void ListGrid::setArrangesColumns(bool on)
{
    if (on == arrangesColumns())
        return;
    d->columns.setOn(on);
    raiseEvent(*this, &ListGrid::arrangesColumnsChanged, on);
}

QString ListGrid::columnLayout(const QString &table) const
{
    return d->columns.layout(table);
}

void ListGrid::setColumnLayout(const QString &table, const QString &layout)
{
    d->columns.setLayout(table, layout);
}

void ListGrid::readColumnLayouts(const PropertyBag &bag)
{
    const QString others = bag.ReadProperty(otherLayouts, QString()).toString();
    for (const QString &name : tableNames(d->columns.layouts(), others))
        d->columns.setLayout(name, bag.ReadProperty(layoutName(name), QString()).toString());
}

void ListGrid::writeColumnLayouts(PropertyBag &bag) const
{
    QSet<QString> names = tableNames(d->columns.layouts(), {});
    for (const QString &name : std::as_const(names))
        bag.WriteProperty(layoutName(name), columnLayout(name), QString());
    names.subtract(tableNames({}, {}));
    QStringList others;
    for (const QString &name : std::as_const(names))
        others.append(QString::fromLatin1(QUrl::toPercentEncoding(name)));
    others.sort();
    bag.WriteProperty(otherLayouts, others.join(u';'), QString());
}

void ListGrid::fitColumn(qint16 column)
{
    if (column >= 0 && column < d->table.columns())
        d->table.fitColumn(column);
}

bool ListGrid::hasMenu() const
{
    return d->menu.isOn();
}

void ListGrid::setHasMenu(bool on)
{
    if (on == hasMenu())
        return;
    d->menu.setOn(on);
    raiseEvent(*this, &ListGrid::hasMenuChanged, on);
}

QUndoStack *ListGrid::undoStack() const
{
    return &d->steps.stack();
}

void ListGrid::setUndoStack(QUndoStack *stack)
{
    d->steps.setStack(stack);
}

void ListGrid::setUndoHistory(const std::optional<UndoHistory> &history)
{
    d->steps.setHistory(history);
}

} // namespace ORVTListview
