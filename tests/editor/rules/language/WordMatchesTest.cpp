#include "editor/rules/language/WordMatches.h"
#include "support/EveryFieldCounts.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QStringList words{u"ExhaustFan"_s, u"Fan"_s, u"FanAlarm"_s, u"Maß"_s, u"SupplyFan"_s};

QStringList found(const QString &typed)
{
    QStringList texts;
    for (const int place : WordMatches(words).find(typed))
        texts.append(words[place]);
    return texts;
}

} // namespace

TEST(WordMatches, WordsThatBeginSoComeFirst)
{
    EXPECT_EQ(found(u"fan"_s),
              QStringList({u"Fan"_s, u"FanAlarm"_s, u"ExhaustFan"_s, u"SupplyFan"_s}));
    EXPECT_EQ(found(u"ALARM"_s), QStringList{u"FanAlarm"_s});
    EXPECT_EQ(found(u"x"_s), QStringList{u"ExhaustFan"_s});
    EXPECT_EQ(found(u"fans"_s), QStringList());
}

TEST(WordMatches, NothingTypedIsInAllWords)
{
    EXPECT_EQ(found(QString()), words);
    EXPECT_TRUE(WordMatches().find(QString()).isEmpty());
}

TEST(WordMatches, LettersThatAreLongerInCapitalsAreFound)
{
    EXPECT_EQ(found(u"mass"_s), QStringList{u"Maß"_s});
    EXPECT_EQ(matchedLetters(u"Maß"_s, u"mass"_s), (MatchedLetters{0, 3}));
    EXPECT_EQ(matchedLetters(u"Maße"_s, u"se"_s), (MatchedLetters{2, 2}));
    EXPECT_EQ(matchedLetters(u"ßFan"_s, u"fan"_s), (MatchedLetters{1, 3}));
}

TEST(WordMatches, LettersAreToldWhereTheyStand)
{
    EXPECT_EQ(matchedLetters(u"ExhaustFan"_s, u"FAN"_s), (MatchedLetters{7, 3}));
    EXPECT_EQ(matchedLetters(u"FanFan"_s, u"fan"_s), (MatchedLetters{0, 3}));
    EXPECT_EQ(matchedLetters(u"Fan"_s, u"x"_s), MatchedLetters());
    EXPECT_EQ(matchedLetters(u"Fan"_s, QString()), MatchedLetters());
    EXPECT_EQ(matchedLetters(u"\U0001D538Fan"_s, u"fan"_s), (MatchedLetters{2, 3}));
}

TEST(WordMatches, HalfALetterIsOne)
{
    const QString half = QChar(0xD801) + u"Fan"_s + QChar(0xD801);
    EXPECT_EQ(matchedLetters(half, u"fan"_s), (MatchedLetters{1, 3}));
    EXPECT_EQ(matchedLetters(half, QString(QChar(0xD801))), (MatchedLetters{0, 1}));
    EXPECT_EQ(matchedLetters(half, u"n"_s + QChar(0xD801)), (MatchedLetters{3, 2}));
}

TEST(WordMatches, LettersAreEqualInPlaceAndLength)
{
    expectEveryFieldCounts(
        MatchedLetters{1, 3}, [](MatchedLetters &other) { other.start = 0; },
        [](MatchedLetters &other) { other.length = 2; });
}
