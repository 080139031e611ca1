#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>

#include <vector>

namespace ORVTListview {

// A sorted list of words, each with a number. Entries are ordered without regard
// to case; equal ones stay in the order of adding. A search begins after the
// first entry and wraps, so that the first entry is compared last.
// Why it is so: docs/decisions/word-list.md.
class ORVT_HOUSE_EXPORT WordIndex
{
public:
    struct Entry
    {
        QString text;
        qint32 data = 0;
    };

    void add(const QString &text, qint32 data);

    // Takes the first entry with this text, letter case ignored, and number away;
    // false if there is none.
    bool remove(const QString &text, qint32 data);

    qsizetype count() const { return static_cast<qsizetype>(m_entries.size()); }
    bool isEmpty() const { return m_entries.empty(); }

    // Position runs from 0 to count() - 1, in sorted order.
    const Entry &at(qsizetype position) const;

    // Position of the entry whose whole text is the word, or of the first one
    // that begins with it, without regard to case; -1 if there is none. Finding
    // a whole text costs the same however many entries there are.
    qsizetype findExact(QStringView word) const;
    qsizetype findPrefix(QStringView beginning) const;

private:
    struct StoredEntry
    {
        Entry entry;
        QString folded;
    };
    struct Slot
    {
        quint32 hash = 0;
        qint32 position = -1;
    };

    void sort() const;
    void buildSlots() const;
    void putInSlot(quint32 hash, qint32 position) const;

    mutable std::vector<StoredEntry> m_entries;
    mutable std::vector<Slot> m_slots; // open addressing, a power of two
    mutable qsizetype m_longest = 0;
    mutable bool m_sorted = true;
};

} // namespace ORVTListview
