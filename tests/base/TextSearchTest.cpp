#include "base/TextSearch.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr TextSearch matchCase{false, true};
constexpr TextSearch wholeWord{true, false};

qsizetype find(const QString &text, const QString &wanted, qsizetype start = 0, TextSearch how = {})
{
    return findText(text, wanted, start, text.size(), how);
}

bool isCut(const QString &text, qsizetype place)
{
    if (place <= 0 || place >= text.size())
        return false;
    const QChar before = text.at(place - 1);
    const QChar behind = text.at(place);
    return (before.isHighSurrogate() && behind.isLowSurrogate()) ||
           (before == u'\r' && behind == u'\n');
}

bool isWord(char32_t character)
{
    return QChar::isLetterOrNumber(character);
}

// Tries every place; letters compare by the simple folding of whole characters.
qsizetype naive(const QString &text, const QString &wanted, qsizetype start, qsizetype end,
                TextSearch how)
{
    for (qsizetype at = std::max<qsizetype>(start, 0); at + wanted.size() <= end; ++at) {
        const QString piece = text.mid(at, wanted.size());
        const auto sensitivity = how.matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive;
        if (piece.compare(wanted, sensitivity) != 0 || wanted.isEmpty())
            continue;
        if (isCut(text, at) || isCut(text, at + wanted.size()))
            continue;
        const auto before = text.first(at).toUcs4();
        const auto behind = text.sliced(at + wanted.size()).toUcs4();
        if (how.wholeWord && ((!before.isEmpty() && isWord(before.constLast())) ||
                              (!behind.isEmpty() && isWord(behind.constFirst()))))
            continue;
        return at;
    }
    return -1;
}

QString randomText(std::mt19937 &random, qsizetype size)
{
    static const QList<QString> pieces{u"a"_s,
                                       u"A"_s,
                                       u"b"_s,
                                       u"B"_s,
                                       u"1"_s,
                                       u"_"_s,
                                       u" "_s,
                                       u"\r\n"_s,
                                       u"\u00e4"_s,
                                       u"\u00c4"_s,
                                       u"\u00df"_s,
                                       u"\U00010400"_s,
                                       u"\U00010428"_s,
                                       u"\U0001F600"_s,
                                       QString(QChar(0xd801)),
                                       QString(QChar(0xdc28))};
    QString text;
    while (text.size() < size)
        text += pieces.at(static_cast<qsizetype>(random() % static_cast<unsigned>(pieces.size())));
    return text;
}

} // namespace

TEST(TextSearch, FindsTheFirstMatchFromTheStart)
{
    EXPECT_EQ(find(u"one two one"_s, u"one"_s), 0);
    EXPECT_EQ(find(u"one two one"_s, u"one"_s, 1), 8);
    EXPECT_EQ(find(u"one two one"_s, u"one"_s, 8), 8);
    EXPECT_EQ(find(u"one two one"_s, u"one"_s, 9), -1);
}

TEST(TextSearch, AnEmptyTextIsNeverFound)
{
    EXPECT_EQ(find(u"abc"_s, QString()), -1);
    EXPECT_EQ(find(QString(), QString()), -1);
    EXPECT_EQ(find(QString(), u"a"_s), -1);
}

TEST(TextSearch, TheMatchLiesWhollyInside)
{
    const QString text = u"abcabc"_s;
    EXPECT_EQ(findText(text, u"abc", 0, 3), 0);
    EXPECT_EQ(findText(text, u"abc", 0, 2), -1);
    EXPECT_EQ(findText(text, u"abc", 1, 5), -1);
    EXPECT_EQ(findText(text, u"abc", 1, 6), 3);
    EXPECT_EQ(findText(text, u"abc", 3, 3), -1);
    EXPECT_EQ(findText(text, u"abc", 5, 2), -1);
}

TEST(TextSearch, BoundsAreClamped)
{
    EXPECT_EQ(findText(u"abc", u"abc", -5, 100), 0);
    EXPECT_EQ(findText(u"abc", u"a", 100, 200), -1);
    EXPECT_EQ(findText(u"abc", u"a", 0, -7), -1);
}

TEST(TextSearch, LetterCaseCountsOnlyWhenAskedFor)
{
    EXPECT_EQ(find(u"abc ABC"_s, u"ABC"_s), 0);
    EXPECT_EQ(find(u"abc ABC"_s, u"ABC"_s, 0, matchCase), 4);
    EXPECT_EQ(find(u"\u00c4rger"_s, u"\u00e4R"_s), 0);
    EXPECT_EQ(find(u"x\U00010428"_s, u"\U00010400"_s), 1);
    EXPECT_EQ(find(u"x\U00010428"_s, u"\U00010400"_s, 0, matchCase), -1);
    // Characters fold to one character, so a sharp s is no "ss".
    EXPECT_EQ(find(u"stra\u00dfe"_s, u"strasse"_s), -1);
    EXPECT_EQ(find(u"stra\u00dfe"_s, u"STRA\u00dfE"_s), 0);
}

TEST(TextSearch, AWholeWordHasNoLetterOrDigitBesideIt)
{
    EXPECT_EQ(find(u"T1A T1"_s, u"T1"_s, 0, wholeWord), 4);
    EXPECT_EQ(find(u"xT1 1T1 T1"_s, u"T1"_s, 0, wholeWord), 8);
    EXPECT_EQ(find(u"T1_A"_s, u"T1"_s, 0, wholeWord), 0);
    EXPECT_EQ(find(u"(T1)"_s, u"T1"_s, 0, wholeWord), 1);
    EXPECT_EQ(find(u"T1"_s, u"T1"_s, 0, wholeWord), 0);
    EXPECT_EQ(find(u"\u00e4T1 T1"_s, u"T1"_s, 0, wholeWord), 4);
    EXPECT_EQ(find(u"\U00010400T1 T1"_s, u"T1"_s, 0, wholeWord), 5);
    EXPECT_EQ(find(u"T1\U00010400 T1\U0001F600"_s, u"T1"_s, 0, wholeWord), 5);
    // What stands outside the searched range is still a neighbour.
    EXPECT_EQ(findText(u"T1A", u"T1", 0, 2, wholeWord), -1);
    EXPECT_EQ(findText(u"AT1", u"T1", 1, 3, wholeWord), -1);
}

TEST(TextSearch, AMatchCutsNoPair)
{
    const QString pair = u"\U0001F600"_s;
    EXPECT_EQ(find(pair + pair.last(1), pair.last(1)), 2);
    EXPECT_EQ(find(pair + pair.first(1) + u"x"_s, pair.first(1)), 2);
    EXPECT_EQ(find(u"a\r\nb"_s, u"\n"_s), -1);
    EXPECT_EQ(find(u"a\r\nb"_s, u"\r"_s), -1);
    EXPECT_EQ(find(u"a\r\nb"_s, u"\r\n"_s), 1);
    EXPECT_EQ(find(pair + pair, pair, 1), 2);
}

TEST(TextSearch, AgreesWithASimpleSearch)
{
    const unsigned seed = randomSeed(20240611);
    SCOPED_TRACE(testing::Message() << "seed " << seed);
    std::mt19937 random(seed);
    for (int round = 0; round < 20000; ++round) {
        const QString text = randomText(random, 1 + static_cast<qsizetype>(random() % 40));
        const QString wanted = randomText(random, static_cast<qsizetype>(random() % 4));
        const auto start = static_cast<qsizetype>(random() % 20);
        const auto end = std::min<qsizetype>(text.size(), static_cast<qsizetype>(random() % 60));
        const TextSearch how{random() % 2 == 0, random() % 2 == 0};
        ASSERT_EQ(findText(text, wanted, start, end, how), naive(text, wanted, start, end, how))
            << "round " << round << ": " << wanted.toStdString() << " in " << text.toStdString();
    }
}
