#include "widgets/combo/ComboEntries.h"

#include <ORVTListview/ImageList.h>

#include <QtGui/QIcon>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

TextHash<int> rowsByKey(const QList<ComboEntry> &entries)
{
    TextHash<int> rows;
    rows.reserve(entries.size());
    // From behind, so that the first of equal keys is the one that stays.
    for (qsizetype row = entries.size() - 1; row >= 0; --row) {
        if (!entries.at(row).key.isEmpty())
            rows.insert(entries.at(row).key, static_cast<int>(row));
    }
    return rows;
}

} // namespace

int ComboEntries::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : size();
}

QVariant ComboEntries::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const ComboEntry &entry = at(index.row());
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return entry.text;
    if (role == Qt::DecorationRole && m_images && m_images->Contains(entry.image))
        return m_images->Picture(entry.image);
    return {};
}

void ComboEntries::setEntries(QList<ComboEntry> entries)
{
    TextHash<int> rows = rowsByKey(entries);
    beginResetModel();
    m_entries = std::move(entries);
    m_rows = std::move(rows);
    endResetModel();
}

int ComboEntries::rowOfText(const QString &text) const
{
    int alike = -1;
    for (int row = 0; row < size(); ++row) {
        const QString &shown = at(row).text;
        if (shown == text)
            return row;
        if (alike < 0 && shown.compare(text, Qt::CaseInsensitive) == 0)
            alike = row;
    }
    return alike;
}

QString ComboEntries::longestText() const
{
    const auto shorter = [](const ComboEntry &a, const ComboEntry &b) {
        return a.text.size() < b.text.size();
    };
    const auto longest = std::max_element(m_entries.cbegin(), m_entries.cend(), shorter);
    return longest == m_entries.cend() ? QString() : longest->text;
}

void ComboEntries::setImages(const ImageList *images)
{
    m_images = images;
    if (size() > 0)
        Q_EMIT dataChanged(index(0), index(size() - 1), {Qt::DecorationRole});
}

} // namespace ORVTListview
