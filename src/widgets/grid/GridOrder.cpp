#include "widgets/grid/GridOrder.h"

#include "grid/rules/RowFilter.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <numeric>
#include <utility>

namespace ORVTListview {

GridOrder::GridOrder(const Tools &tools)
    : m_tools(tools)
{
    m_tools.table.setOrderer([this] { return order(); });
    const QAbstractItemModel *model = m_tools.view.model();
    connect(model, &QAbstractItemModel::modelReset, this, &GridOrder::noteReset);
    connect(model, &QAbstractItemModel::rowsInserted, this, &GridOrder::noteRows);
    connect(model, &QAbstractItemModel::columnsInserted, this,
            [this](const QModelIndex &, int first, int last) {
                moveColumns([&](int column) {
                    return column < first ? column : column + last - first + 1;
                });
            });
    connect(model, &QAbstractItemModel::columnsRemoved, this,
            [this](const QModelIndex &, int first, int last) {
                moveColumns([&](int column) {
                    if (column > last)
                        return column - (last - first + 1);
                    return column < first ? column : m_tools.table.columns(); // gone
                });
            });
}

void GridOrder::noteReset()
{
    m_awaitsRows = m_tools.table.rows() == 0;
}

void GridOrder::noteRows()
{
    if (!m_awaitsRows || !m_tools.table.isOrdered() || std::exchange(m_isRefilled, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (m_isRefilled)
                apply();
        },
        Qt::QueuedConnection);
}

void GridOrder::keepRows()
{
    m_awaitsRows = m_isRefilled = false;
}

// The view's own sorting does nothing but to give up the header's clicks.
void GridOrder::setByHeader(bool on)
{
    m_isByHeader = on;
    m_tools.view.setSortingEnabled(on);
    m_tools.view.horizontalHeader()->setSortIndicatorShown(false); // it knows one column only
}

void GridOrder::click(int column, bool adds)
{
    setKeys(clickedKeys(m_keys, column, adds));
}

void GridOrder::setKeys(const QList<SortKey> &keys)
{
    m_keys = keys;
    m_keys.removeIf([this](const SortKey &key) {
        return key.column < 0 || key.column >= m_tools.table.columns();
    });
    markHeader();
    apply();
}

void GridOrder::setFilter(int column, const QString &typed)
{
    if (typed == filter(column) || column >= m_tools.table.columns())
        return;
    if (typed.isEmpty())
        m_filters.remove(column);
    else
        m_filters.insert(column, typed);
    apply();
}

void GridOrder::clearFilters()
{
    if (!std::exchange(m_filters, {}).isEmpty())
        apply();
}

void GridOrder::apply()
{
    const QPointer<GridOrder> self(this);
    m_tools.before();
    if (!self)
        return;
    m_awaitsRows = m_isRefilled = false;
    m_tools.table.show(order());
    if (self && m_follow)
        m_follow();
}

CellTable::Order GridOrder::order() const
{
    if (m_keys.isEmpty() && m_filters.isEmpty())
        return std::nullopt;
    const CellTable &table = m_tools.table;
    QList<int> seen;
    for (int column = 0; column < table.columns(); ++column) {
        if (!m_tools.view.isColumnHidden(column))
            seen.append(column);
    }
    QList<CellFilter> filters;
    for (auto filter = m_filters.cbegin(); filter != m_filters.cend(); ++filter)
        filters.append(typedFilter(filter.value(), filter.key()));
    const auto texts = [&table](int row, int column) -> const QString & {
        return table.textOf(row, column);
    };
    return sortedRows(filteredRows(table.rows(), seen, filters, texts, m_tools.shown), m_keys,
                      texts);
}

void GridOrder::markHeader()
{
    QList<int> ranks(m_tools.table.columns(), 0);
    int rank = 0;
    for (const SortKey &key : std::as_const(m_keys)) {
        ++rank;
        ranks[key.column] = key.isDescending ? -rank : rank;
    }
    // Who is told may take columns away.
    for (int column = 0; column < ranks.size() && column < m_tools.table.columns(); ++column)
        m_tools.table.setSortRank(column, ranks.at(column));
}

// What columns that have gone had to do with the order has gone with them.
void GridOrder::moveColumns(const std::function<int(int)> &newColumn)
{
    const int columns = m_tools.table.columns();
    const QList<SortKey> formerKeys = std::exchange(m_keys, {});
    for (SortKey key : formerKeys) {
        key.column = newColumn(key.column);
        if (key.column < columns)
            m_keys.append(key);
    }
    const QMap<int, QString> formerFilters = std::exchange(m_filters, {});
    for (auto filter = formerFilters.cbegin(); filter != formerFilters.cend(); ++filter) {
        const bool isAny = filter.key() == CellFilter::anyColumn;
        const int column = isAny ? filter.key() : newColumn(filter.key());
        if (column < columns && columns > 0)
            m_filters.insert(column, filter.value());
    }
    markHeader();
    if (m_keys != formerKeys || m_filters != formerFilters)
        QMetaObject::invokeMethod(
            this, [this] { apply(); }, Qt::QueuedConnection);
}

} // namespace ORVTListview
