// In which order views have the rows.

#include "widgets/list/ReportModel.h"

#include <QtCore/QPersistentModelIndex>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ORVTListview {

void ReportModel::order(const Order &positions)
{
    m_shown.clear();
    m_places.forgetFrom(0);
    m_isOrdered = positions.has_value();
    if (!m_isOrdered)
        return;
    for (const std::unique_ptr<ReportRow> &row : m_rows)
        row->place = -1;
    m_shown.reserve(static_cast<std::size_t>(positions->size()));
    for (const int position : *positions) {
        m_shown.push_back(&row(position));
        m_shown.back()->place = static_cast<int>(m_shown.size()) - 1;
    }
}

void ReportModel::show(const Order &positions)
{
    if (positions || m_isOrdered)
        layOut([&] { order(positions); });
}

void ReportModel::moveRows(const QList<int> &positions, int step)
{
    layOut([&] {
        const auto moveOne = [&](int position) {
            const auto row = m_rows.begin() + position;
            std::iter_swap(row, row + step);
        };
        if (step < 0)
            std::for_each(positions.cbegin(), positions.cend(), moveOne);
        else
            std::for_each(positions.crbegin(), positions.crend(), moveOne);
        m_positions.forgetFrom(positions.constFirst() + std::min(step, 0));
    });
}

void ReportModel::layOut(const std::function<void()> &change)
{
    announce([&] { Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint); });
    const QModelIndexList before = persistentIndexList();
    QList<const ReportRow *> rows;
    rows.reserve(before.size());
    for (const QModelIndex &index : before)
        rows.append(&rowAt(index));
    change();
    QModelIndexList after;
    after.reserve(before.size());
    for (qsizetype i = 0; i < before.size(); ++i)
        after.append(indexOf(*rows.at(i), before.at(i).column()));
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

} // namespace ORVTListview
