#include "widgets/list/RowChoice.h"

#include "widgets/list/ReportModel.h"

#include <QtWidgets/QTableView>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr auto wholeRow = QItemSelectionModel::Rows;

} // namespace

RowChoice::RowChoice(QTableView &view, ReportModel &model)
    : m_view(view)
    , m_model(model)
    , m_scroll(view)
{
}

bool RowChoice::isSelected(const ReportRow &row) const
{
    return m_view.selectionModel()->isSelected(m_model.index(m_model.positionOf(row), 0));
}

void RowChoice::setSelected(const ReportRow &row, bool selected)
{
    if (selected && !isMultiple()) {
        select(&row);
        return;
    }
    m_view.selectionModel()->select(
        m_model.index(m_model.positionOf(row), 0),
        (selected ? QItemSelectionModel::Select : QItemSelectionModel::Deselect) | wholeRow);
}

ReportRow *RowChoice::selected() const
{
    const QModelIndex current = m_view.currentIndex();
    if (current.isValid() && isSelected(m_model.row(current.row())))
        return &m_model.row(current.row());
    const QItemSelection ranges = m_view.selectionModel()->selection();
    int first = m_model.rows();
    for (const QItemSelectionRange &range : ranges)
        first = std::min(first, range.top());
    return first < m_model.rows() ? &m_model.row(first) : nullptr;
}

void RowChoice::select(const ReportRow *row)
{
    m_view.selectionModel()->clearSelection();
    if (!row)
        return;
    const int column = std::max(0, m_view.currentIndex().column());
    m_scroll.makeCurrent(m_model.index(m_model.positionOf(*row), column),
                         QItemSelectionModel::NoUpdate);
    m_view.selectionModel()->select(m_view.currentIndex(), QItemSelectionModel::Select | wholeRow);
}

QList<int> RowChoice::selectedPositions() const
{
    QList<int> positions;
    const QItemSelection ranges = m_view.selectionModel()->selection();
    for (const QItemSelectionRange &range : ranges) {
        for (int position = range.top(); position <= range.bottom(); ++position)
            positions.append(position);
    }
    std::sort(positions.begin(), positions.end());
    positions.erase(std::unique(positions.begin(), positions.end()), positions.end());
    return positions;
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

void RowChoice::ensureVisible(const ReportRow &row)
{
    m_scroll.ensureVisible(m_model.index(m_model.positionOf(row), 0));
}

void RowChoice::viewShown()
{
    const QModelIndex awaited = m_scroll.takeAwaited();
    if (awaited.isValid())
        m_scroll.ensureVisible(awaited);
}

} // namespace ORVTListview
