#include "widgets/list/ReportModel.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {

ReportColumn *ReportModel::findColumn(const QString &key) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&key](const auto &column) { return column->key == key; });
    return found == m_columns.end() || key.isEmpty() ? nullptr : found->get();
}

int ReportModel::positionOf(const ReportColumn &column) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(),
                                    [&column](const auto &held) { return held.get() == &column; });
    return static_cast<int>(found - m_columns.begin());
}

// The columns behind a new or removed one show other cells from then on.
ReportColumn &ReportModel::addColumn(int position, const QString &key, const QString &text,
                                     Qt::Alignment alignment)
{
    announce([&] { beginInsertColumns({}, position, position); });
    m_columns.insert(m_columns.begin() + position,
                     std::make_unique<ReportColumn>(key, text, alignment));
    endInsertColumns();
    touchAll(position + 1, columns() - 1, {});
    return column(position);
}

void ReportModel::deleteColumn(int position)
{
    announce([&] { beginRemoveColumns({}, position, position); });
    m_columns.erase(m_columns.begin() + position);
    endRemoveColumns();
    touchAll(position, columns() - 1, {});
}

void ReportModel::clearColumns()
{
    if (m_columns.empty())
        return;
    announce([&] { beginRemoveColumns({}, 0, columns() - 1); });
    m_columns.clear();
    endRemoveColumns();
}

void ReportModel::setText(ReportColumn &column, const QString &text)
{
    if (column.text == text)
        return;
    column.text = text;
    const int position = positionOf(column);
    Q_EMIT headerDataChanged(Qt::Horizontal, position, position);
}

void ReportModel::setColumnAlignment(ReportColumn &column, Qt::Alignment alignment)
{
    if (column.alignment == alignment)
        return;
    column.alignment = alignment;
    const int position = positionOf(column);
    Q_EMIT headerDataChanged(Qt::Horizontal, position, position);
    touchAll(position, position, {Qt::TextAlignmentRole});
}

void ReportModel::setSortRank(int column, int rank)
{
    if (std::exchange(this->column(column).sortRank, rank) != rank)
        Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

} // namespace ORVTListview
