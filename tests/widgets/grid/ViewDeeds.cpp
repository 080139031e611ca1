// What is done to what is seen of rows and columns.

#include "widgets/grid/GridDeeds.h"
#include "widgets/grid/TwoTables.h"
#include <ORVTListview/ListItem.h>

#include <QtWidgets/QScrollBar>

#include <array>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

void hideRow(TwoTables &tables)
{
    const int row = tables.below(static_cast<int>(tables.plain.rows.size()));
    bool &isHidden = tables.plain.rows[row].isHidden;
    isHidden = !isHidden;
    tables.item(row)->setVisible(!isHidden);
}

void hideColumn(TwoTables &tables)
{
    const int column = tables.below(PlainTable::columns);
    tables.list.setColumnHidden(column, !tables.list.isColumnHidden(column));
}

void sort(TwoTables &tables)
{
    ListGrid::SortKeys &keys = tables.plain.keys;
    keys.clear();
    for (int left = tables.below(3); left > 0; --left)
        keys.append({static_cast<qint16>(tables.below(PlainTable::columns)),
                     tables.below(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder});
    tables.list.grid()->setSortKeys(keys);
    tables.plain.arrange(tables.columnsSeen());
}

void filter(TwoTables &tables)
{
    static const std::array filters{u"a"_s, u"7"_s, u"="_s, u"<>"_s, u"<>7.5"_s};
    const int column = tables.below(PlainTable::columns + 1) - 1;
    const int most = column < 0 ? 2 : static_cast<int>(filters.size());
    const QString typed =
        tables.below(2) == 0 ? QString() : filters.at(static_cast<std::size_t>(tables.below(most)));
    tables.say(u"%1 '%2'"_s.arg(column).arg(typed));
    const bool isOther = tables.plain.filters.value(column) != typed;
    if (typed.isEmpty())
        tables.plain.filters.remove(column);
    else
        tables.plain.filters.insert(column, typed);
    tables.list.grid()->setFilterText(static_cast<qint16>(column), typed);
    if (isOther)
        tables.plain.arrange(tables.columnsSeen());
}

void arrange(TwoTables &tables)
{
    tables.list.grid()->arrangeRows();
    tables.plain.arrange(tables.columnsSeen());
}

// Where a cell is seen, it is found.
void keepColumns(TwoTables &tables)
{
    ReportList &list = tables.list;
    list.grid()->setKeepsFirstColumns(tables.below(4) != 0);
    list.horizontalScrollBar()->setValue(tables.below(list.horizontalScrollBar()->maximum() + 1));
    list.verticalScrollBar()->setValue(0);
    const QRect seen = list.viewport()->rect();
    int left = tables.list.grid()->keepsFirstColumns() ? 2 : 0;
    for (const int column : tables.columnsSeen()) {
        const QModelIndex cell = list.indexAt({seen.width() / 2, 5}).siblingAtColumn(column);
        const QRect place = list.visualRect(cell);
        const bool isKept = left-- > 0 && list.horizontalScrollBar()->value() > 0;
        if (!cell.isValid() || (isKept && !seen.contains(place)))
            continue;
        const QModelIndex found = list.indexAt(place.center());
        if (isKept && found != cell)
            qFatal("a column that is kept in sight is not found at its place");
    }
}

} // namespace

QList<GridDeed> viewDeeds()
{
    return {{"hideRow", hideRow}, {"hideColumn", hideColumn},  {"sort", sort},
            {"sort", sort},       {"filter", filter},          {"filter", filter},
            {"arrange", arrange}, {"keepColumns", keepColumns}};
}
