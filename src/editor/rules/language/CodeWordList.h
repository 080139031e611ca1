#pragma once

#include "base/HouseExport.h"
#include "editor/rules/language/WordIndex.h"
#include <ORVTListview/KeyedCollection.h>
#include <ORVTListview/PointCollection.h>

#include <array>
#include <optional>

namespace ORVTListview {

class Vocabulary;

// The index of all known words of a thread. The number of an entry is the RTF
// colour index of its class.
class ORVT_HOUSE_EXPORT CodeWordList
{
public:
    // Empties the index and adds constants, variables, inputs, outputs, network
    // variable inputs, the words of the language and the indexed names, in this
    // order, which decides between equal words. Raises Error and changes nothing when
    // a collection of the host fails.
    void FillCodeWordList(const Vocabulary &vocabulary);

    // Takes the names of the ready collections that have changed since the index was
    // filled. An index that never was stays empty.
    // Why it is so: docs/decisions/word-list.md.
    void follow(const Vocabulary &vocabulary);

    // Renames a point of a type whose names are words, or adds it when the old name
    // is not listed for that type. Other types and an empty new name change nothing.
    void UpdateWordListItem(const QString &OldName, const QString &NewName, qint32 TypeIndex);

    // Makes the entry found the current one. With Exact the whole text counts,
    // else the beginning, without regard to case.
    bool FindInWordList(QStringView Text, bool Exact);

    // The entry that the last successful FindInWordList found; null before one.
    const WordIndex::Entry *current() const;

    const WordIndex &index() const { return m_index; }

    // Grows whenever the index changes.
    quint64 changes() const { return m_changes; }

private:
    static constexpr std::size_t kinds = 5; // of points
    using Choice = std::array<bool, kinds>;
    using Contents = std::optional<KeyedCollection<Point>>;

    bool isStale(std::size_t kind, const Vocabulary &vocabulary) const;
    void rememberContents(const Choice &which, const Vocabulary &vocabulary);
    void refill(const Choice &which, const Vocabulary &vocabulary, const QStringList &reserved);
    void replaceIndex(WordIndex index);
    QStringList listed(qint32 colour) const;

    WordIndex m_index;
    std::array<Contents, kinds> m_read; // of ready collections, as they were then
    qsizetype m_current = -1;
    quint64 m_changes = 0;
    bool m_isFilled = false;
};

} // namespace ORVTListview
