#pragma once

#include "editor/rules/language/WordIndex.h"

namespace ORVTListview {

class Vocabulary;

// The index of all known words of a thread. The number of an entry is the RTF
// colour index of its class.
class ORVT_CORE_EXPORT CodeWordList
{
public:
    // Empties the index and adds constants, variables, inputs, outputs, network
    // variable inputs, the words of the language and the indexed names, in this
    // order, which decides between equal words.
    void FillCodeWordList(const Vocabulary &vocabulary);

    // Renames a point of a type whose names are words, or adds it when the old name
    // is not listed for that type. Other types and an empty new name change nothing.
    void UpdateWordListItem(const QString &OldName, const QString &NewName, qint32 TypeIndex);

    // Makes the entry found the current one. With Exact the whole text counts,
    // else the beginning, without regard to case.
    bool FindInWordList(QStringView Text, bool Exact);

    // The entry that the last successful FindInWordList found; null before one.
    const WordIndex::Entry *current() const;

    const WordIndex &index() const { return m_index; }

private:
    WordIndex m_index;
    qsizetype m_current = -1;
};

} // namespace ORVTListview
