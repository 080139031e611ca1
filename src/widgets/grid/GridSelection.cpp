#include "widgets/grid/GridSelection.h"

#include <QtCore/QItemSelectionModel>
#include <QtCore/QPersistentModelIndex>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace ORVTListview {

QList<int> GridSelection::rows() const
{
    QList<int> rows;
    for (const QItemSelectionRange &range : m_view.selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (!m_view.isRowHidden(row))
                rows.append(row);
        }
    }
    if (rows.isEmpty() && m_view.currentIndex().isValid())
        rows.append(m_view.currentIndex().row());
    if (!std::is_sorted(rows.cbegin(), rows.cend()))
        std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

QList<int> GridSelection::columns() const
{
    const QModelIndex current = m_view.currentIndex();
    if (m_view.selectionModel()->selection().isEmpty())
        return isSeen(current) ? QList<int>{current.column()} : QList<int>();
    QList<int> columns;
    for (const int column : columnsFrom(m_view.horizontalHeader()->logicalIndex(0))) {
        const QItemSelection ranges = m_view.selectionModel()->selection();
        const bool isTouched =
            std::any_of(ranges.cbegin(), ranges.cend(), [column](const QItemSelectionRange &range) {
                return range.left() <= column && column <= range.right();
            });
        if (isTouched)
            columns.append(column);
    }
    return columns;
}

QList<CellPlace> GridSelection::chosen() const
{
    const QModelIndex current = m_view.currentIndex();
    const bool isOne = m_view.selectionModel()->selection().isEmpty();
    QList<int> among;
    if (isByCells())
        among = columns();
    else if (isSeen(current))
        among.append(current.column());
    QList<CellPlace> cells;
    for (const int row : rows()) {
        for (const int column : among) {
            if ((isOne || isSelected({row, column})))
                cells.append({row, column});
        }
    }
    return cells;
}

bool GridSelection::isSeen(const QModelIndex &cell) const
{
    return cell.isValid() && !m_view.isColumnHidden(cell.column());
}

bool GridSelection::isSelected(CellPlace cell) const
{
    return m_view.selectionModel()->isSelected(m_view.model()->index(cell.row, cell.column));
}

QList<int> GridSelection::rowsFrom(int row, qsizetype most) const
{
    QList<int> rows;
    const int end = m_view.model()->rowCount();
    for (; row >= 0 && row < end && rows.size() < most; ++row) {
        if (!m_view.isRowHidden(row))
            rows.append(row);
    }
    return rows;
}

QList<int> GridSelection::columnsFrom(int column) const
{
    const QHeaderView &header = *m_view.horizontalHeader();
    QList<int> columns;
    for (int visual = header.visualIndex(column); visual >= 0 && visual < header.count();
         ++visual) {
        if (!header.isSectionHidden(header.logicalIndex(visual)))
            columns.append(header.logicalIndex(visual));
    }
    return columns;
}

// In one piece, unless users have moved the columns.
void GridSelection::select(CellPlace first, CellPlace last)
{
    if (first.row != last.row && m_view.selectionMode() == QAbstractItemView::SingleSelection)
        return;
    const QAbstractItemModel &model = *m_view.model();
    QList<int> columns = columnsFrom(first.column);
    columns.resize(columns.indexOf(last.column) + 1);
    QItemSelection cells;
    for (qsizetype begin = 0, end = 0; begin < columns.size(); begin = end) {
        for (end = begin + 1; end < columns.size() && columns.at(end) == columns.at(end - 1) + 1;)
            ++end;
        cells.append(QItemSelectionRange(model.index(first.row, columns.at(begin)),
                                         model.index(last.row, columns.at(end - 1))));
    }
    const bool isRows = m_view.selectionBehavior() == QAbstractItemView::SelectRows;
    m_view.selectionModel()->select(cells, isRows ? QItemSelectionModel::ClearAndSelect |
                                                        QItemSelectionModel::Rows
                                                  : QItemSelectionModel::ClearAndSelect);
}

bool GridSelection::selectAfter(const std::function<bool()> &act, CellPlace first, CellPlace last)
{
    const QAbstractItemModel &model = *m_view.model();
    const QPersistentModelIndex begin(model.index(first.row, first.column));
    const QPersistentModelIndex end(model.index(last.row, last.column));
    if (!act())
        return false;
    const bool isAsItWas = begin.isValid() && end.isValid() &&
                           end.row() - begin.row() == last.row - first.row &&
                           end.column() - begin.column() == last.column - first.column;
    if (isAsItWas)
        select({begin.row(), begin.column()}, {end.row(), end.column()});
    return true;
}

void GridSelection::selectColumn(int column)
{
    const QList<int> rows = rowsFrom(0);
    if (column >= 0 && !rows.isEmpty())
        select({rows.first(), column}, {rows.last(), column});
}

void GridSelection::selectRow()
{
    const int row = m_view.currentIndex().row();
    const QList<int> columns = columnsFrom(m_view.horizontalHeader()->logicalIndex(0));
    if (row >= 0 && !columns.isEmpty())
        select({row, columns.first()}, {row, columns.last()});
}

} // namespace ORVTListview
