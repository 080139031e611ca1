#include "widgets/combo/ComboMatches.h"

#include "widgets/combo/ComboEntries.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ORVTListview {
namespace {

QList<int> allRows(int count)
{
    QList<int> rows(count);
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

} // namespace

ComboMatches::ComboMatches(const ComboEntries &entries, QObject *parent)
    : QAbstractListModel(parent)
    , m_entries(entries)
{
    connect(&entries, &ComboEntries::modelReset, this, &ComboMatches::matchAll);
    matchAll();
}

ComboMatches::~ComboMatches() = default;

int ComboMatches::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : size();
}

QVariant ComboMatches::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    return m_entries.data(m_entries.index(rowAt(index.row())), role);
}

void ComboMatches::matchAll()
{
    beginResetModel();
    m_filter.clear();
    m_rows = allRows(m_entries.size());
    endResetModel();
}

void ComboMatches::setFilter(const QString &filter)
{
    // What holds the longer text holds the shorter one too, unless that is half of
    // a character.
    const bool narrows = m_filter.isValidUtf16() && filter.contains(m_filter, Qt::CaseInsensitive);
    const QList<int> candidates = narrows ? m_rows : allRows(m_entries.size());
    QList<int> rows;
    rows.reserve(candidates.size());
    for (const int row : candidates) {
        if (m_entries.at(row).text.contains(filter, Qt::CaseInsensitive))
            rows.append(row);
    }
    beginResetModel();
    m_filter = filter;
    m_rows = std::move(rows);
    endResetModel();
}

int ComboMatches::positionOf(int row) const
{
    const auto found = std::lower_bound(m_rows.cbegin(), m_rows.cend(), row);
    return found == m_rows.cend() || *found != row ? -1 : static_cast<int>(found - m_rows.cbegin());
}

int ComboMatches::bestPosition() const
{
    if (m_filter.isEmpty())
        return -1;
    int begins = -1;
    for (int position = 0; position < size(); ++position) {
        const QString &text = m_entries.at(rowAt(position)).text;
        if (!text.startsWith(m_filter, Qt::CaseInsensitive))
            continue;
        if (text.size() == m_filter.size())
            return position;
        if (begins < 0)
            begins = position;
    }
    return begins < 0 && size() > 0 ? 0 : begins;
}

} // namespace ORVTListview
