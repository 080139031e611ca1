#include "grid/rules/RowOrder.h"

#include "grid/rules/NaturalOrder.h"

#include <algorithm>
#include <optional>
#include <utility>
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

    // In their order, counted from 0.
    std::vector<std::size_t> sorted() const
    {
        std::vector<Place> places = ranked();
        std::sort(places.begin(), places.end(), [this](const Place &first, const Place &second) {
            return first.rank != second.rank ? first.rank < second.rank
                                             : isBefore(first.row, second.row);
        });
        std::vector<std::size_t> rows;
        rows.reserve(places.size());
        for (const Place &place : places)
            rows.push_back(place.row);
        return rows;
    }

private:
    // A row by its first key.
    struct Place
    {
        NaturalKey::Rank rank;
        std::size_t row;
    };

    std::vector<Place> ranked() const
    {
        const auto count = static_cast<std::size_t>(m_keys.size());
        const qsizetype shared = sharedBegin();
        std::vector<Place> places;
        places.reserve(m_naturals.size() / count);
        for (std::size_t row = 0; row * count < m_naturals.size(); ++row) {
            NaturalKey::Rank rank = m_naturals[row * count].rank(shared);
            if (m_keys.first().isDescending && rank.kind != NaturalKey::Empty)
                rank = {rank.kind == NaturalKey::Text ? NaturalKey::Number : NaturalKey::Text,
                        ~rank.value};
            places.push_back({rank, row});
        }
        return places;
    }

    // Of all texts by which rows are sorted first.
    qsizetype sharedBegin() const
    {
        std::optional<qsizetype> shared;
        const NaturalKey *text = nullptr;
        const auto count = static_cast<std::size_t>(m_keys.size());
        for (std::size_t i = 0; i < m_naturals.size() && shared != 0; i += count) {
            if (m_naturals[i].kind() != NaturalKey::Text)
                continue;
            if (const NaturalKey *before = std::exchange(text, &m_naturals[i])) {
                const qsizetype begin = before->sharedBegin(*text);
                shared = std::min(begin, shared.value_or(begin));
            }
        }
        return shared.value_or(0);
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
    QList<int> sorted;
    sorted.reserve(rows.size());
    for (const std::size_t place : naturals.sorted())
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
