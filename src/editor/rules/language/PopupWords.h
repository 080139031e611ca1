#pragma once

#include "base/HouseExport.h"
#include "editor/rules/language/WordClass.h"
#include "editor/rules/language/WordIndex.h"

#include <QtCore/QList>
#include <QtCore/QString>

namespace ORVTListview {

class Vocabulary;

// The class of an entry of the thread's word index.
ORVT_HOUSE_EXPORT WordClass classOf(const WordIndex::Entry &entry, const Vocabulary &vocabulary);

// An entry of the pop-up word list.
struct PopupWord
{
    QString text;
    ClassStyle style;
    WordClass wordClass = WordClass::Other;
};

// What words of a class are called, in English: the name of the point type, or what the
// language has; empty for a class that is not listed.
ORVT_HOUSE_EXPORT QString nameOf(WordClass wordClass);

// The words of the index in its order, one for each text without regard to case:
// the one that a search for the whole text finds.
class ORVT_HOUSE_EXPORT PopupWords
{
public:
    PopupWords() = default;
    PopupWords(const WordIndex &index, const Vocabulary &vocabulary,
               const RichTextSettings &settings);

    const QList<PopupWord> &words() const { return m_words; }

    // The place of a word, or of the first one with a beginning, without regard to
    // case; -1 if there is none.
    qsizetype find(const QString &word) const;
    qsizetype findBeginning(const QString &beginning) const;

    // Whether any word goes on behind it.
    bool goesOnBehind(const QString &beginning) const;

private:
    qsizetype lowerBound(const QString &folded) const;

    QList<PopupWord> m_words;
    QStringList m_folded; // beside m_words
};

} // namespace ORVTListview
