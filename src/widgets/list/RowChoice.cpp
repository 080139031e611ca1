#include "widgets/list/RowChoice.h"

#include "widgets/list/ReportModel.h"

#include <QtWidgets/QTableView>

#include <algorithm>

namespace ORVTListview {
RowChoice::RowChoice(QTableView &view, ReportModel &model)
    : m_view(view)
    , m_model(model)
    , m_selection(model)
    , m_scroll(view)
{
}

bool RowChoice::isSelected(const ReportRow &row) const
{
    return row.selected;
}

void RowChoice::setSelected(ReportRow &row, bool selected)
{
    if (selected && !isMultiple())
        select(&row);
    else
        m_selection.setSelected(row, selected);
}

void RowChoice::toggleCurrent()
{
    const QModelIndex current = m_view.currentIndex();
    if (!current.isValid())
        return;
    ReportRow &row = m_model.rowAt(current);
    setSelected(row, !row.selected);
}

ReportRow *RowChoice::selected() const
{
    const QModelIndex current = m_view.currentIndex();
    if (current.isValid() && isSelected(m_model.rowAt(current)))
        return &m_model.rowAt(current);
    const QList<int> positions = m_selection.positions(1);
    return positions.isEmpty() ? nullptr : &m_model.row(positions.first());
}

void RowChoice::select(const ReportRow *row)
{
    m_selection.select(QItemSelection(), QItemSelectionModel::Clear);
    if (!row)
        return;
    const int column = std::max(0, m_view.currentIndex().column());
    const QModelIndex index = m_model.indexOf(*row, column);
    if (index.isValid() || m_model.columns() == 0)
        m_scroll.makeCurrent(index, QItemSelectionModel::NoUpdate);
    m_selection.setSelected(m_model.row(m_model.positionOf(*row)), true);
}

void RowChoice::setCurrentColumn(int column)
{
    m_scroll.makeCurrent(m_model.index(std::max(0, m_view.currentIndex().row()), column),
                         QItemSelectionModel::NoUpdate);
}

bool RowChoice::isOnlySelected(const ReportRow &row) const
{
    return row.selected && m_selection.positions(2).size() == 1;
}

bool RowChoice::isMultiple() const
{
    return m_view.selectionMode() != QAbstractItemView::SingleSelection;
}

void RowChoice::setMultiple(bool multiple)
{
    const ReportRow *kept = selected();
    m_view.setSelectionMode(multiple ? QAbstractItemView::ExtendedSelection
                                     : QAbstractItemView::SingleSelection);
    if (!multiple && kept)
        select(kept);
}

void RowChoice::setByCells(bool on)
{
    m_view.setSelectionBehavior(on ? QAbstractItemView::SelectItems
                                   : QAbstractItemView::SelectRows);
    m_selection.setByCells(on);
}

void RowChoice::ensureVisible(const ReportRow &row)
{
    const QModelIndex index = m_model.indexOf(row, 0);
    if (index.isValid() || m_model.columns() == 0)
        m_scroll.ensureVisible(index);
}

void RowChoice::viewShown()
{
    const QModelIndex awaited = m_scroll.takeAwaited();
    if (awaited.isValid())
        m_scroll.ensureVisible(awaited);
}

} // namespace ORVTListview
