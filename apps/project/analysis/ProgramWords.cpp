#include "project/analysis/ProgramWords.h"

#include "base/TextRules.h"
#include "editor/rules/language/PopupWords.h"
#include "editor/rules/language/Vocabulary.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

struct FixedWord
{
    QStringView text;
    TokenKind kind = TokenKind::Unknown;
};
constexpr std::array fixedWords = {
    FixedWord{u"IF", TokenKind::If},       FixedWord{u"ELSE", TokenKind::Else},
    FixedWord{u"ENDIF", TokenKind::EndIf}, FixedWord{u"END", TokenKind::End},
    FixedWord{u"AND", TokenKind::And},     FixedWord{u"OR", TokenKind::Or},
    FixedWord{u"=", TokenKind::Equals},    FixedWord{u"+", TokenKind::Sign},
    FixedWord{u"-", TokenKind::Sign},      FixedWord{u"*", TokenKind::Product},
    FixedWord{u"/", TokenKind::Product},   FixedWord{u"CLEAR", TokenKind::Clear},
};

// A function stays one until the index is filled anew, whatever the vocabulary says.
TokenKind kindOfFanIn(const QString &text, const Vocabulary &vocabulary)
{
    if (Vocabulary::FanInWordList().contains(text))
        return TokenKind::FanIn;
    return vocabulary.IndexedNameList().contains(text) ? TokenKind::Name : TokenKind::Function;
}

TokenKind kindOf(WordClass wordClass, const QString &text, const Vocabulary &vocabulary)
{
    if (wordClass >= WordClass::Variable && wordClass <= WordClass::Nvi)
        return TokenKind::Name;
    const auto *const fixed =
        std::find_if(fixedWords.begin(), fixedWords.end(),
                     [&](const FixedWord &each) { return each.text == text; });
    if (fixed != fixedWords.end())
        return fixed->kind;
    switch (wordClass) {
    case WordClass::Keyword:
        return TokenKind::Comparison;
    case WordClass::TimeWord:
        return TokenKind::TimeWord;
    case WordClass::Function:
        return TokenKind::Function;
    default:
        return kindOfFanIn(text, vocabulary);
    }
}

} // namespace

ProgramWords::ProgramWords(const Vocabulary &vocabulary, const WordIndex &index)
    : m_index(index)
{
    m_words.reserve(static_cast<std::size_t>(index.count()));
    for (qsizetype i = 0; i < index.count(); ++i) {
        const WordIndex::Entry &entry = m_index.at(i);
        const WordClass wordClass = classOf(entry, vocabulary);
        m_words.push_back({kindOf(wordClass, entry.text, vocabulary), wordClass});
    }
}

bool ProgramWords::isSame(const ProgramWords &other) const
{
    if (m_words != other.m_words)
        return false;
    for (qsizetype i = 0; i < m_index.count(); ++i) {
        if (spelling(i) != other.spelling(i))
            return false;
    }
    return true;
}

QSet<QString> ProgramWords::differences(const ProgramWords &other) const
{
    QSet<QString> words;
    addOthers(other, words);
    other.addOthers(*this, words);
    return words;
}

void ProgramWords::addOthers(const ProgramWords &other, QSet<QString> &words) const
{
    for (qsizetype i = 0; i < m_index.count(); ++i) {
        const QString &word = m_index.at(i).text;
        const qsizetype there = other.find(word);
        if (there < 0 || m_index.at(find(word)).data != other.m_index.at(there).data)
            words.insert(foldedCase(word));
    }
}

} // namespace ORVTListview
