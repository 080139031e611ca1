#pragma once

#include "editor/rules/language/WordClass.h"
#include "editor/rules/language/WordIndex.h"

#include <QtCore/QSet>
#include <QtCore/QStringView>

#include <vector>

namespace ORVTListview {

class Vocabulary;

enum class TokenKind : qint8 {
    Unknown,
    Number,
    Name, // of a point, or an indexed one
    TimeWord,
    Function,
    FanIn,
    Clear,
    If,
    Else,
    EndIf,
    End,
    And,
    Or,
    Comparison,
    Equals,
    Sign,    // + and -
    Product, // * and /
    Open,
    Close,
    Comma,
};

// The words that a program is read with, as they are when this is made.
class ProgramWords
{
public:
    struct Word
    {
        TokenKind kind = TokenKind::Unknown;
        WordClass wordClass = WordClass::Other;

        friend bool operator==(const Word &, const Word &) = default;
    };

    ProgramWords() = default;
    ProgramWords(const Vocabulary &vocabulary, const WordIndex &index);

    // The place of a word, in any letter case; -1 for one that is not known.
    qsizetype find(QStringView word) const { return m_index.findExact(word); }
    const Word &at(qsizetype place) const { return m_words[static_cast<std::size_t>(place)]; }
    const QString &spelling(qsizetype place) const { return m_index.at(place).text; }

    // Whether they are the same words with the same meaning and spelling.
    bool isSame(const ProgramWords &other) const;

    // The words that only one of them knows, or that have another colour, in folded case.
    QSet<QString> differences(const ProgramWords &other) const;

private:
    void addOthers(const ProgramWords &other, QSet<QString> &words) const;

    WordIndex m_index;
    std::vector<Word> m_words; // beside its entries
};

} // namespace ORVTListview
