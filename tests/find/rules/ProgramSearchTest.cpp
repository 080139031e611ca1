#include "find/rules/ProgramSearch.h"

#include "find/SimpleSearch.h"
#include "support/QtPrinters.h"

#include <QtCore/QString>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

constexpr TextSearch wholeWord{true, false};
constexpr TextSearch matchCase{false, true};

qsizetype find(const QString &text, const QString &wanted, qsizetype start = 0, TextSearch how = {})
{
    return findInProgram(text, wanted, start, how);
}

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
    RandomPrograms random;
    SCOPED_TRACE(random.seed());
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

TEST(ProgramSearch, GoesBackwards)
{
    const QString text = u"T1 xT1 t1"_s;
    EXPECT_EQ(findInProgramBefore(text, u"t1"_s, 9, {}), 7);
    EXPECT_EQ(findInProgramBefore(text, u"t1"_s, 8, {}), 4);
    EXPECT_EQ(findInProgramBefore(text, u"t1"_s, 8, wholeWord), 0);
    EXPECT_EQ(findInProgramBefore(text, u"t1"_s, 9, matchCase), 7);
    EXPECT_EQ(findInProgramBefore(text, u"t1"_s, 1, {}), -1);
    EXPECT_EQ(findInProgramBefore(u"T1_A"_s, u"T1"_s, 2, wholeWord), -1);
    EXPECT_EQ(findInProgramBefore(text, QString(), 9, {}), -1);
}
