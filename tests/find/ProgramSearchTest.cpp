#include "find/ProgramSearch.h"

#include "support/QtPrinters.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr TextSearch wholeWord{true, false};
constexpr TextSearch matchCase{false, true};

qsizetype find(const QString &text, const QString &wanted, qsizetype start = 0, TextSearch how = {})
{
    return findInProgram(text, wanted, start, how);
}

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

QList<Character> charactersOf(const QString &text)
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

bool sameText(const QString &a, const QString &b, bool isCaseMatched)
{
    return a == b || (!isCaseMatched && QString::compare(a, b, Qt::CaseInsensitive) == 0);
}

// Compares character by character at each one from the start on.
class SimpleSearch
{
public:
    SimpleSearch(const QString &text, const QString &wanted, TextSearch how)
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
    TextSearch m_how;
    qsizetype m_wantedSize;
};

class RandomPrograms
{
public:
    explicit RandomPrograms(unsigned seed)
        : m_random(seed)
    {
    }

    int number(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }
    bool coin() { return number(2) == 0; }

    QString text(int longest)
    {
        static const QStringList characters{u"a"_s,      u"A"_s,          u"b"_s,    u"1"_s,
                                            u"_"_s,      u" "_s,          u"\r\n"_s, u"("_s,
                                            u"\u00e9"_s, u"\U0001d49c"_s, u"a"_s,    u"_"_s};
        QString text;
        for (int i = number(longest + 1); i > 0; --i)
            text += characters[number(static_cast<int>(characters.size()))];
        return text;
    }

private:
    std::mt19937 m_random;
};

} // namespace

TEST(ProgramSearch, AnUnderscoreIsPartOfAWord)
{
    const QString text = u"T1_A T1"_s;
    EXPECT_EQ(find(text, u"T1"_s), 0);
    EXPECT_EQ(find(text, u"T1"_s, 0, wholeWord), 5);
    EXPECT_EQ(find(u"_T1"_s, u"T1"_s, 0, wholeWord), -1);
    EXPECT_EQ(find(u"T1_"_s, u"T1"_s, 0, wholeWord), -1);
    EXPECT_EQ(find(u"(t1)"_s, u"T1"_s, 0, wholeWord), 1);
    EXPECT_EQ(find(u"T1"_s, u"T1"_s, 0, wholeWord), 0);
}

TEST(ProgramSearch, AnUnderscoreInTheTextWantedIsOneLikeAnyOther)
{
    EXPECT_EQ(find(u"a_b c_"_s, u"a_b"_s, 0, wholeWord), 0);
    EXPECT_EQ(find(u"x _ y"_s, u"_"_s, 0, wholeWord), 2);
    EXPECT_EQ(find(u"__"_s, u"_"_s, 0, wholeWord), -1);
}

TEST(ProgramSearch, WithoutWholeWordsUnderscoresMeanNothing)
{
    EXPECT_EQ(find(u"a T1_"_s, u"t1"_s), 2);
    EXPECT_EQ(find(u"a T1_"_s, u"t1"_s, 0, matchCase), -1);
}

TEST(ProgramSearch, FindsNothingInNothing)
{
    EXPECT_EQ(find(u""_s, u"a"_s), -1);
    EXPECT_EQ(find(u"a"_s, u""_s), -1);
    EXPECT_EQ(find(u"a"_s, u"a"_s, 1), -1);
    EXPECT_EQ(find(u"a"_s, u"a"_s, 99), -1);
}

TEST(ProgramSearch, ARejectedMatchDoesNotHideOneThatOverlapsIt)
{
    EXPECT_EQ(find(u"_a a"_s, u"a"_s, 0, wholeWord), 3);
    EXPECT_EQ(find(u"_a a a"_s, u"a a"_s, 0, wholeWord), 3);
}

TEST(ProgramSearch, PlacesToReplaceLeaveOutWhatTouches)
{
    EXPECT_EQ(placesToReplace(u"aa", u"a", {}), Places({0}));
    EXPECT_EQ(placesToReplace(u"aaa", u"a", {}), Places({0, 2}));
    EXPECT_EQ(placesToReplace(u"a a a", u"a", {}), Places({0, 2, 4}));
    EXPECT_EQ(placesToReplace(u"xa", u"a", {}), Places({1}));
    EXPECT_EQ(placesToReplace(u"a", u"", {}), Places());
    EXPECT_EQ(placesToReplace(u"", u"a", {}), Places());
    EXPECT_EQ(placesToReplace(u"a\r\na", u"a", {}), Places({0, 3}));
}

TEST(ProgramSearch, AWordStandsBetweenTheEditorsBounds)
{
    EXPECT_EQ(placesOfWord(u"T1 T1_A t1", u"T1"), Places({0, 8}));
    EXPECT_EQ(placesOfWord(u"(T1)", u"t1"), Places({1}));
    EXPECT_EQ(placesOfWord(u"\tT1\t", u"T1"), Places({1}));
    EXPECT_EQ(placesOfWord(u"x\r\nT1\r\ny", u"T1"), Places({3}));
    EXPECT_EQ(placesOfWord(u"x=T1 T1+1 T1, -T1", u"T1"), Places());
    EXPECT_EQ(placesOfWord(u"f(T1 (T1( )T1", u"T1"), Places({2}));
    EXPECT_EQ(placesOfWord(u"REM about T1", u"T1"), Places({10}));
    EXPECT_EQ(placesOfWord(u"T1 T1", u"T1 T1"), Places({0}));
    EXPECT_EQ(placesOfWord(u"a a a", u"a"), Places({0, 2, 4}));
    EXPECT_EQ(placesOfWord(u"a", u""), Places());
    EXPECT_EQ(placesOfWord(u"", u"a"), Places());
}

TEST(ProgramSearch, AgreesWithASimpleSearch)
{
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomPrograms random(seed);
    int found = 0;
    for (int i = 0; i < 10'000; ++i) {
        const QString text = random.text(40);
        const QString wanted = random.text(3);
        const TextSearch how{random.coin(), random.coin()};
        const SimpleSearch simple(text, wanted, how);
        const int start = random.number(static_cast<int>(text.size()) + 2);
        ASSERT_EQ(find(text, wanted, start, how), simple.from(start))
            << text.toStdString() << " / " << wanted.toStdString();
        ASSERT_EQ(placesToReplace(text, wanted, how), simple.all())
            << text.toStdString() << " / " << wanted.toStdString();
        found += simple.all().isEmpty() ? 0 : 1;
    }
    EXPECT_GT(found, 1'000);
}
