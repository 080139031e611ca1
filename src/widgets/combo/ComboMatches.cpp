#include "widgets/combo/ComboMatches.h"

#include "widgets/combo/ComboEntries.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace ORVTListview {
namespace {

constexpr char16_t lower(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c | 0x20) : c;
}

bool isAscii(QStringView text)
{
    char16_t all = 0;
    for (const QChar c : text)
        all |= c.unicode();
    return all < 0x80;
}

// A text that others are looked through for, letter case ignored. A key has to get
// through thousands of names, nearly all of them ASCII.
class Wanted
{
public:
    explicit Wanted(const QString &text)
        : m_text(text)
        , m_isAscii(isAscii(text))
    {
    }

    bool isIn(QStringView text) const
    {
        if (!m_isAscii || !isAscii(text))
            return text.contains(m_text, Qt::CaseInsensitive);
        const auto isAlike = [](QChar a, QChar b) {
            return lower(a.unicode()) == lower(b.unicode());
        };
        const auto *found =
            std::search(text.begin(), text.end(), m_text.begin(), m_text.end(), isAlike);
        return found != text.end() || m_text.isEmpty();
    }

private:
    QString m_text;
    bool m_isAscii;
};

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
    const Wanted wanted(filter);
    for (const int row : candidates) {
        if (wanted.isIn(m_entries.at(row).text))
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
