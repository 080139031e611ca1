#include "grid/rules/RowOrder.h"

#include "grid/rules/NaturalOrder.h"

#include <algorithm>
#include <vector>

namespace ORVTListview {
namespace {

// A row's place among those that are sorted, and its keys side by side with theirs.
class RowKeys
{
public:
    RowKeys(const QList<int> &rows, const QList<SortKey> &keys, const CellTexts &texts)
        : m_keys(keys)
    {
        m_naturals.reserve(static_cast<std::size_t>(rows.size() * keys.size()));
        for (const int row : rows) {
            for (const SortKey &key : keys)
                m_naturals.emplace_back(texts(row, key.column));
        }
    }

    bool isBefore(std::size_t first, std::size_t second) const
    {
        const auto count = static_cast<std::size_t>(m_keys.size());
        for (std::size_t key = 0; key < count; ++key) {
            const int order =
                compared(m_naturals[first * count + key], m_naturals[second * count + key],
                         m_keys.at(static_cast<qsizetype>(key)).isDescending);
            if (order != 0)
                return order < 0;
        }
        return first < second;
    }

private:
    static int compared(const NaturalKey &first, const NaturalKey &second, bool isDescending)
    {
        const int order = NaturalKey::compared(first, second);
        return isDescending && !first.isEmpty() && !second.isEmpty() ? -order : order;
    }

    const QList<SortKey> &m_keys;
    std::vector<NaturalKey> m_naturals;
};

} // namespace

QList<int> sortedRows(const QList<int> &rows, const QList<SortKey> &keys, const CellTexts &texts)
{
    if (keys.isEmpty())
        return rows;
    const RowKeys naturals(rows, keys, texts);
    std::vector<std::size_t> places(static_cast<std::size_t>(rows.size()));
    for (std::size_t place = 0; place < places.size(); ++place)
        places[place] = place;
    std::sort(places.begin(), places.end(), [&naturals](std::size_t first, std::size_t second) {
        return naturals.isBefore(first, second);
    });
    QList<int> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t place : places)
        sorted.append(rows.at(static_cast<qsizetype>(place)));
    return sorted;
}

QList<SortKey> clickedKeys(const QList<SortKey> &keys, int column, bool adds)
{
    const auto found = std::find_if(keys.cbegin(), keys.cend(),
                                    [column](const SortKey &key) { return key.column == column; });
    QList<SortKey> clicked = adds ? keys : QList<SortKey>();
    if (found == keys.cend() || (!adds && found != keys.cbegin()))
        return clicked << SortKey{column, false};
    const auto isIt = [column](const SortKey &key) { return key.column == column; };
    if (found->isDescending)
        clicked.removeIf(isIt);
    else if (adds)
        clicked[found - keys.cbegin()].isDescending = true;
    else
        clicked.append({column, true});
    return clicked;
}

} // namespace ORVTListview
