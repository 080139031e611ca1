#include "editor/rules/language/WordIndex.h"

#include "base/TextRules.h"

#include <algorithm>
#include <bit>

namespace ORVTListview {
namespace {

quint32 hashOf(QStringView folded)
{
    quint32 hash = 2166136261U;
    for (const QChar c : folded)
        hash = (hash ^ c.unicode()) * 16777619U;
    return hash ^ (hash >> 15);
}

} // namespace

void WordIndex::add(const QString &text, qint32 data)
{
    m_entries.push_back({{text, data}, foldedCase(text)});
    m_sorted = false;
}

bool WordIndex::remove(const QString &text, qint32 data)
{
    sort();
    const QString folded = foldedCase(text);
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [&](const StoredEntry &stored) {
            return stored.entry.data == data && stored.folded == folded;
        });
    if (found == m_entries.end())
        return false;
    m_entries.erase(found);
    m_sorted = false;
    return true;
}

const WordIndex::Entry &WordIndex::at(qsizetype position) const
{
    sort();
    return m_entries[static_cast<std::size_t>(position)].entry;
}

void WordIndex::sort() const
{
    if (m_sorted)
        return;
    std::stable_sort(
        m_entries.begin(), m_entries.end(),
        [](const StoredEntry &a, const StoredEntry &b) { return a.folded < b.folded; });
    buildSlots();
    m_sorted = true;
}

void WordIndex::buildSlots() const
{
    m_longest = 0;
    m_slots.assign(std::bit_ceil(m_entries.size() * 2 + 1), Slot());
    const auto foldedAt = [this](std::size_t i) -> const QString & { return m_entries[i].folded; };
    for (std::size_t first = 0, next = 0; first < m_entries.size(); first = next) {
        while (next < m_entries.size() && foldedAt(next) == foldedAt(first))
            ++next;
        // Of equal entries the first one wins, unless it is the first of all,
        // which is compared last.
        const std::size_t winner = first == 0 && next > 1 ? 1 : first;
        putInSlot(hashOf(foldedAt(first)), static_cast<qint32>(winner));
        m_longest = std::max(m_longest, foldedAt(first).size());
    }
}

void WordIndex::putInSlot(quint32 hash, qint32 position) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = hash & mask;
    while (m_slots[slot].position >= 0)
        slot = (slot + 1) & mask;
    m_slots[slot] = {hash, position};
}

qsizetype WordIndex::findExact(QStringView word) const
{
    sort();
    if (m_entries.empty() || word.size() > m_longest)
        return -1; // folding shortens no text
    FoldedText buffer;
    foldCase(word, buffer);
    const QStringView folded(buffer.data(), buffer.size());
    const quint32 hash = hashOf(folded);
    const std::size_t mask = m_slots.size() - 1;
    for (std::size_t i = hash & mask; m_slots[i].position >= 0; i = (i + 1) & mask) {
        const Slot &slot = m_slots[i];
        if (slot.hash == hash &&
            m_entries[static_cast<std::size_t>(slot.position)].folded == folded)
            return slot.position;
    }
    return -1;
}

qsizetype WordIndex::findPrefix(QStringView beginning) const
{
    sort();
    const QString folded = foldedCase(beginning);
    const auto begins = [&folded](const StoredEntry &stored) {
        return stored.folded.startsWith(folded);
    };
    if (m_entries.empty())
        return -1;
    const auto found =
        std::lower_bound(m_entries.begin() + 1, m_entries.end(), folded,
                         [](const StoredEntry &a, const QString &b) { return a.folded < b; });
    if (found != m_entries.end() && begins(*found))
        return found - m_entries.begin();
    return begins(m_entries.front()) ? 0 : -1;
}

} // namespace ORVTListview
