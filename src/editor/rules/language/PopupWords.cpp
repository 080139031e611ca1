#include "editor/rules/language/PopupWords.h"

#include "base/TextRules.h"
#include "editor/rules/language/Vocabulary.h"
#include "shared/points/DisplayNames.h"

#include <algorithm>
#include <array>
#include <optional>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The index knows all reserved words by one colour; the lists tell them apart.
WordClass reservedClass(const QString &word, const Vocabulary &vocabulary)
{
    if (Vocabulary::KeywordList().contains(word))
        return WordClass::Keyword;
    if (Vocabulary::TimeWordList().contains(word))
        return WordClass::TimeWord;
    if (vocabulary.FunctionWordList().contains(word))
        return WordClass::Function;
    return WordClass::FanIn;
}

} // namespace

WordClass classOf(const WordIndex::Entry &entry, const Vocabulary &vocabulary)
{
    const WordClass points = classOfColour(entry.data);
    return points == WordClass::Other ? reservedClass(entry.text, vocabulary) : points;
}

QString nameOf(WordClass wordClass)
{
    switch (wordClass) {
    case WordClass::Variable:
        return displayName(dsVariable);
    case WordClass::Constant:
        return displayName(dsConst);
    case WordClass::Input:
        return displayName(dsInput);
    case WordClass::Output:
        return displayName(dsOutput);
    case WordClass::Nvi:
        return displayName(dsNvi);
    case WordClass::Function:
        return u"Functions"_s;
    case WordClass::Keyword:
    case WordClass::TimeWord:
    case WordClass::FanIn:
        return u"Reserved Words"_s;
    default:
        return {};
    }
}

PopupWords::PopupWords(const WordIndex &index, const Vocabulary &vocabulary,
                       const RichTextSettings &settings)
{
    m_words.reserve(index.count());
    m_folded.reserve(index.count());
    for (qsizetype i = 0; i < index.count(); ++i) {
        const QString folded = foldedCase(index.at(i).text);
        if (!m_folded.isEmpty() && m_folded.last() == folded)
            continue;
        const WordIndex::Entry &entry = index.at(index.findExact(folded));
        const WordClass wordClass = classOf(entry, vocabulary);
        m_words.append({entry.text, styleOf(wordClass, settings), wordClass});
        m_folded.append(folded);
    }
}

qsizetype PopupWords::lowerBound(const QString &folded) const
{
    return std::lower_bound(m_folded.begin(), m_folded.end(), folded) - m_folded.begin();
}

qsizetype PopupWords::find(const QString &word) const
{
    const QString folded = foldedCase(word);
    const qsizetype place = lowerBound(folded);
    return place < m_folded.size() && m_folded[place] == folded ? place : -1;
}

qsizetype PopupWords::findBeginning(const QString &beginning) const
{
    const QString folded = foldedCase(beginning);
    const qsizetype place = lowerBound(folded);
    return place < m_folded.size() && m_folded[place].startsWith(folded) ? place : -1;
}

bool PopupWords::goesOnBehind(const QString &beginning) const
{
    const QString folded = foldedCase(beginning);
    qsizetype place = lowerBound(folded);
    if (place < m_folded.size() && m_folded[place] == folded)
        ++place;
    return place < m_folded.size() && m_folded[place].startsWith(folded);
}

} // namespace ORVTListview
