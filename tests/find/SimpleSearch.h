#pragma once

// A search to compare with: it looks at each character in turn.

#include "base/TextSearch.h"

#include "support/RandomSeed.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <random>
#include <string>

using Places = QList<qsizetype>;

// Characters as users see them, so that no place is inside a pair.
struct Character
{
    QString text;
    qsizetype place = 0;

    bool isWord() const
    {
        const QList<uint> codes = text.toUcs4();
        return codes.size() == 1 && (QChar::isLetterOrNumber(codes[0]) || codes[0] == u'_');
    }
};

inline QList<Character> charactersOf(const QString &text)
{
    QList<Character> characters;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isSecond =
            i > 0 && ((text[i - 1].isHighSurrogate() && text[i].isLowSurrogate()) ||
                      (text[i - 1] == u'\r' && text[i] == u'\n'));
        if (isSecond)
            characters.last().text += text[i];
        else
            characters.append({text.sliced(i, 1), i});
    }
    return characters;
}

inline bool sameText(const QString &a, const QString &b, bool isCaseMatched)
{
    return a == b || (!isCaseMatched && QString::compare(a, b, Qt::CaseInsensitive) == 0);
}

// Compares character by character at each one from the start on.
class SimpleSearch
{
public:
    SimpleSearch(const QString &text, const QString &wanted, ORVTListview::TextSearch how)
        : m_text(charactersOf(text))
        , m_wanted(charactersOf(wanted))
        , m_how(how)
        , m_wantedSize(wanted.size())
    {
    }

    qsizetype from(qsizetype start) const
    {
        for (qsizetype i = 0; i < m_text.size() && !m_wanted.isEmpty(); ++i) {
            if (m_text[i].place >= start && isMatch(i))
                return m_text[i].place;
        }
        return -1;
    }

    Places all() const
    {
        Places places;
        for (qsizetype at = from(0); at >= 0; at = from(at + m_wantedSize + 1))
            places.append(at);
        return places;
    }

private:
    bool isMatch(qsizetype first) const
    {
        const qsizetype behind = first + m_wanted.size();
        if (behind > m_text.size())
            return false;
        for (qsizetype i = 0; i < m_wanted.size(); ++i) {
            if (!sameText(m_text[first + i].text, m_wanted[i].text, m_how.matchCase))
                return false;
        }
        const bool touches = (first > 0 && m_text[first - 1].isWord()) ||
                             (behind < m_text.size() && m_text[behind].isWord());
        return !m_how.wholeWord || !touches;
    }

    QList<Character> m_text;
    QList<Character> m_wanted;
    ORVTListview::TextSearch m_how;
    qsizetype m_wantedSize;
};

class RandomPrograms
{
public:
    explicit RandomPrograms(unsigned seed = randomSeed())
        : m_seed(seed)
        , m_random(seed)
    {
    }

    std::string seed() const { return "seed " + std::to_string(m_seed); }

    int number(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    bool coin() { return number(2) == 0; }

    QString text(int longest)
    {
        static const QStringList characters{
            QStringLiteral("a"),          QStringLiteral("A"), QStringLiteral("b"),
            QStringLiteral("1"),          QStringLiteral("_"), QStringLiteral(" "),
            QStringLiteral("\r\n"),       QStringLiteral("("), QStringLiteral("\u00e9"),
            QStringLiteral("\U0001d49c"), QStringLiteral("a"), QStringLiteral("_")};
        QString text;
        for (int i = number(longest + 1); i > 0; --i)
            text += characters[number(static_cast<int>(characters.size()))];
        return text;
    }

private:
    unsigned m_seed;
    std::mt19937 m_random;
};
