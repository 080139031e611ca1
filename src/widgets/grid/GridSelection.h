#pragma once

#include "widgets/grid/CellTable.h"

#include <QtCore/QList>

#include <functional>
#include <limits>

class QTableView;

namespace ORVTListview {

// A cell by its place in the view.
struct CellPlace
{
    int row = 0;
    int column = 0;
};

// Which cells of a grid are chosen, and which rows and columns they touch. What is hidden
// counts for nothing.
class GridSelection
{
public:
    GridSelection(QTableView &view, CellTable &table)
        : m_view(view)
        , m_table(table)
    {
    }
    Q_DISABLE_COPY_MOVE(GridSelection) // of one view

    bool isByCells() const { return m_table.selectsCells(); }
    void setByCells(bool on) { m_table.setSelectsCells(on); }

    // In the order in which they are seen. Without a selection those of the current cell.
    QList<int> rows() const;
    QList<int> columns() const;

    // Row by row: the selected cells, or while rows are selected those of the current
    // column. Without a selection the current cell.
    QList<CellPlace> chosen() const;

    bool isSelected(CellPlace cell) const;

    // The rows or columns that are seen, from this one on; of rows no more than so many.
    QList<int> rowsFrom(int row, qsizetype most = std::numeric_limits<qsizetype>::max()) const;
    QList<int> columnsFrom(int column) const;

    // The cells between two, which become the selection; where only one row may be selected
    // none of several rows do.
    void select(CellPlace first, CellPlace last);

    // The same once act has succeeded, with whom a host may change rows and columns: where
    // the cells are by then, and only if there is neither more nor less between them. False
    // when act is, by which the list may be gone.
    bool selectAfter(const std::function<bool()> &act, CellPlace first, CellPlace last);

    // A whole column, and the row of the current cell.
    void selectColumn(int column);
    void selectRow();

private:
    bool isSeen(const QModelIndex &cell) const;

    QTableView &m_view;
    CellTable &m_table;
};

} // namespace ORVTListview
