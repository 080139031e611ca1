#pragma once

#include <ORVTListview/Error.h>

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <utility>

namespace ORVTListview {

// Items in the order of adding, reached by position, counted from 1, or by key,
// without regard to letter case (keys are compared in upper case, as
// QString::toUpper gives it). Any text may be a key, the empty one too. A plain
// value: copies are independent.
//
// A position outside 1 to Count() raises Error (SubscriptOutOfRange), a key that
// is not there raises Error (InvalidCall); the collection is then unchanged.
template <typename T>
class KeyedCollection
{
public:
    // How many items there are, and whether there is one under the key.
    qint32 Count() const { return static_cast<qint32>(m_entries.size()); }
    bool Contains(const QString &Key) const { return m_positions.contains(folded(Key)); }

    // The item at a position or under a key. Valid until the next change.
    const T &Item(qint32 Index) const { return m_entries.at(position(Index, "Item")).item; }
    const T &Item(const QString &Key) const { return m_entries.at(position(Key, "Item")).item; }

    // The item under the key; null if there is none. Valid until the next change.
    const T *find(const QString &Key) const;

    // Keys are handed out as they were given to Add.
    QString Key(qint32 Index) const { return m_entries.at(position(Index, "Key")).key; }
    QStringList Keys() const;

    // Raises Error (InvalidCall) when the key is in use, in any letter case.
    void Add(T Item, const QString &Key);

    // The items behind the removed one move up by one position.
    void Remove(qint32 Index) { removeAt(position(Index, "Remove")); }
    void Remove(const QString &Key) { removeAt(position(Key, "Remove")); }

    // Removes all items.
    void Clear();

    // Whether this is a copy of the other one and neither has changed since. Looks at
    // no item.
    bool isSharedWith(const KeyedCollection &other) const
    {
        return m_entries.isSharedWith(other.m_entries);
    }

    friend bool operator==(const KeyedCollection &a, const KeyedCollection &b)
    {
        return a.m_entries == b.m_entries;
    }

private:
    struct Entry
    {
        QString key;
        T item;

        friend bool operator==(const Entry &, const Entry &) = default;
    };

    // In this form texts that differ in letter case only are equal.
    static QString folded(const QString &key) { return key.toUpper(); }

    // Positions inside are counted from 0.
    qsizetype position(qint32 index, const char *member) const;
    qsizetype position(const QString &key, const char *member) const;
    void removeAt(qsizetype removed);

    static Error error(qint32 number, const char *member, const QString &description)
    {
        return Error(number, QStringLiteral("KeyedCollection.") + QLatin1String(member),
                     description);
    }

    QList<Entry> m_entries;
    QHash<QString, qsizetype> m_positions; // by upper-case key
};

template <typename T>
QStringList KeyedCollection<T>::Keys() const
{
    QStringList keys;
    keys.reserve(m_entries.size());
    for (const Entry &entry : m_entries)
        keys.append(entry.key);
    return keys;
}

template <typename T>
const T *KeyedCollection<T>::find(const QString &Key) const
{
    const auto found = m_positions.constFind(folded(Key));
    return found == m_positions.cend() ? nullptr : &m_entries.at(*found).item;
}

template <typename T>
void KeyedCollection<T>::Add(T Item, const QString &Key)
{
    if (Contains(Key))
        throw error(InvalidCall, "Add",
                    QStringLiteral("The key \"%1\" is in use already").arg(Key));
    m_positions.insert(folded(Key), m_entries.size());
    m_entries.append(Entry{Key, std::move(Item)});
}

template <typename T>
void KeyedCollection<T>::Clear()
{
    m_entries.clear();
    m_positions.clear();
}

template <typename T>
qsizetype KeyedCollection<T>::position(qint32 index, const char *member) const
{
    if (index < 1 || index > m_entries.size())
        throw error(SubscriptOutOfRange, member, QStringLiteral("There is no item %1").arg(index));
    return index - 1;
}

template <typename T>
qsizetype KeyedCollection<T>::position(const QString &key, const char *member) const
{
    const auto found = m_positions.constFind(folded(key));
    if (found == m_positions.cend())
        throw error(InvalidCall, member, QStringLiteral("There is no key \"%1\"").arg(key));
    return *found;
}

template <typename T>
void KeyedCollection<T>::removeAt(qsizetype removed)
{
    m_positions.remove(folded(m_entries.at(removed).key));
    m_entries.removeAt(removed);
    for (qsizetype i = removed; i < m_entries.size(); ++i)
        m_positions[folded(m_entries.at(i).key)] = i;
}

} // namespace ORVTListview
