#include "find/rules/SearchHistory.h"

#include "base/ThreadState.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(SearchHistory, KeepsTheOrderOfFirstUse)
{
    SearchHistory history;
    EXPECT_TRUE(history.add(u"Temp1"_s));
    EXPECT_TRUE(history.add(u"Fan1"_s));
    EXPECT_FALSE(history.add(u"Temp1"_s));
    EXPECT_EQ(history.texts(), QStringList({u"Temp1"_s, u"Fan1"_s}));
}

TEST(SearchHistory, TakesNoTextTwiceWhateverItsLetterCase)
{
    SearchHistory history;
    EXPECT_TRUE(history.add(u"Température"_s));
    EXPECT_FALSE(history.add(u"TEMPÉRATURE"_s));
    EXPECT_TRUE(history.contains(u"température"_s));
    EXPECT_EQ(history.texts(), QStringList({u"Température"_s}));
}

TEST(SearchHistory, BlanksMakeATextAnother)
{
    SearchHistory history;
    EXPECT_TRUE(history.add(u"a"_s));
    EXPECT_TRUE(history.add(u"a "_s));
    EXPECT_TRUE(history.add(u" "_s));
}

TEST(SearchHistory, NeverTakesAnEmptyText)
{
    SearchHistory history;
    EXPECT_FALSE(history.add(QString()));
    EXPECT_EQ(history.texts(), QStringList());
}

TEST(SearchHistory, AThreadHasTwo)
{
    const ThreadState::Fresh fresh;
    threadPart<SearchHistories>().searched.add(u"a"_s);
    EXPECT_TRUE(threadPart<SearchHistories>().searched.contains(u"A"_s));
    EXPECT_FALSE(threadPart<SearchHistories>().replacements.contains(u"a"_s));
    {
        const ThreadState::Fresh other;
        EXPECT_FALSE(threadPart<SearchHistories>().searched.contains(u"a"_s));
    }
    EXPECT_TRUE(threadPart<SearchHistories>().searched.contains(u"a"_s));
}
