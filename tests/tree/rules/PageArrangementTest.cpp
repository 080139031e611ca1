#include "tree/rules/PageArrangement.h"

#include "base/ThreadState.h"
#include "support/QtPrinters.h"
#include "support/RandomText.h"
#include "support/TestFolder.h"
#include <ORVTListview/SettingsStore.h>

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The settings are those of the file "s".
class PageArrangementTest : public testing::Test
{
protected:
    PageArrangementTest() { setSettingsFile(folder.path(u"s"_s)); }

    static void store(const QString &name, const QString &text)
    {
        WriteSetting(u"Quillbox"_s, name, text);
    }
    static QString stored(const QString &name) { return ReadSetting(u"Quillbox"_s, name); }

    // The display names of each page.
    static QStringList loadedKeys()
    {
        QStringList pages;
        const QList<Pages> loaded = PageArrangement::load();
        for (const Pages &page : loaded)
            pages.append(page.Key.join(u','));
        return pages;
    }

    static QStringList allNames()
    {
        QStringList names;
        for (qint32 type = lowestType; type <= highestType; ++type)
            names.append(displayName(type));
        return names;
    }

    ThreadState::Fresh fresh;
    TestFolder folder;
};

} // namespace

TEST_F(PageArrangementTest, WithoutSettingsOnePageHoldsAllTypes)
{
    EXPECT_EQ(loadedKeys(), QStringList{allNames().join(u',')});
    EXPECT_EQ(PageArrangement::load().first().Index.first(), dsCode);
    EXPECT_TRUE(folder.names().isEmpty()); // reading writes nothing
}

TEST_F(PageArrangementTest, ThereAreAsManyPagesAsTheHighestNumberNeeds)
{
    store(u"Logs"_s, u"7"_s);
    const QList<Pages> pages = PageArrangement::load();
    ASSERT_EQ(pages.size(), 8);
    EXPECT_EQ(pages.at(7).Key, QStringList{u"Logs"_s});
    EXPECT_EQ(pages.at(7).Index, QList<LwType>{dsLog});
    for (int empty = 1; empty < 7; ++empty)
        EXPECT_EQ(pages.at(empty), Pages());
    EXPECT_EQ(pages.first().Index.size(), 12);
}

TEST_F(PageArrangementTest, EveryTypeHasItsOwnSetting)
{
    QStringList expected;
    for (qint32 type = lowestType; type <= highestType; ++type) {
        store(displayName(type), QString::number(12 - type));
        expected.prepend(displayName(type));
    }
    EXPECT_EQ(loadedKeys(), expected);
}

TEST_F(PageArrangementTest, TypesAscendOnTheirPageAndNamesGoWithThem)
{
    for (const QString &name : {u"Output Parameters"_s, u"Inputs"_s, u"Optimum Starts"_s})
        store(name, u"1"_s);
    const Pages page = PageArrangement::load().at(1);
    EXPECT_EQ(page.Index, (QList<LwType>{dsInput, dsOs, dsOutputParam}));
    EXPECT_EQ(page.Key, QStringList({u"Inputs"_s, u"Optimum Starts"_s, u"Output Parameters"_s}));
    EXPECT_EQ(page.Name, QString());
}

TEST_F(PageArrangementTest, WhatIsNoPageNumberCountsAsPageNull)
{
    const std::map<QString, qint16> texts{
        {u""_s, qint16{0}},      {u" "_s, qint16{0}},      {u"0"_s, qint16{0}},
        {u"3"_s, qint16{3}},     {u" 3 "_s, qint16{3}},    {u"+3"_s, qint16{3}},
        {u"003"_s, qint16{3}},   {u"2.5"_s, qint16{2}},    {u"3.5"_s, qint16{4}},
        {u"1e2"_s, qint16{100}}, {u"999"_s, qint16{999}},  {u"999.4"_s, qint16{999}},
        {u"999.6"_s, qint16{0}}, {u"1000"_s, qint16{0}},   {u"32767"_s, qint16{0}},
        {u"32768"_s, qint16{0}}, {u"65539"_s, qint16{0}},  {u"4294967299"_s, qint16{0}},
        {u"-1"_s, qint16{0}},    {u"-0"_s, qint16{0}},     {u"-32768"_s, qint16{0}},
        {u"1e999"_s, qint16{0}}, {u"NaN"_s, qint16{0}},    {u"inf"_s, qint16{0}},
        {u"three"_s, qint16{0}}, {u"3x"_s, qint16{0}},     {u"0x3"_s, qint16{0}},
        {u"3;4"_s, qint16{0}},   {u"\u0663"_s, qint16{0}}, {u"1,5"_s, qint16{0}},
    };
    for (const auto &[text, page] : texts)
        EXPECT_EQ(PageArrangement::storedPage(text), page) << text.toStdString();
    EXPECT_EQ(PageArrangement::storedPage(QString(1'000'000, u'9')), 0);
}

TEST_F(PageArrangementTest, AnyTextGivesAPage)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    for (int i = 0; i < 20'000; ++i) {
        const qint16 page = PageArrangement::storedPage(random.text(8));
        ASSERT_GE(page, 0);
        ASSERT_LE(page, 999);
    }
}

TEST_F(PageArrangementTest, OneBadSettingHarmsNoOther)
{
    store(u"Inputs"_s, u"2"_s);
    store(u"Outputs"_s, u"many"_s);
    const QList<Pages> pages = PageArrangement::load();
    ASSERT_EQ(pages.size(), 3);
    EXPECT_EQ(pages.at(2).Key, QStringList{u"Inputs"_s});
    EXPECT_TRUE(pages.at(0).Key.contains(u"Outputs"_s));
}

TEST_F(PageArrangementTest, SavesPageNumbersAsDecimalText)
{
    PageArrangement::save({{u"Inputs"_s, 0}, {u"Logs"_s, 12}});
    EXPECT_EQ(stored(u"Inputs"_s), u"0"_s);
    EXPECT_EQ(stored(u"Logs"_s), u"12"_s);
    EXPECT_EQ(stored(u"Outputs"_s), QString());
}

TEST_F(PageArrangementTest, APageThatCannotBeReadBackIsNotSaved)
{
    PageArrangement::save({{u"Inputs"_s, 999}, {u"Logs"_s, 3}});
    PageArrangement::save({{u"Inputs"_s, 1005}, {u"Logs"_s, 4}, {u"Timers"_s, 70000}});
    EXPECT_EQ(stored(u"Inputs"_s), u"999"_s);
    EXPECT_EQ(stored(u"Logs"_s), u"4"_s);
    EXPECT_EQ(stored(u"Timers"_s), QString());
}

TEST_F(PageArrangementTest, SavingIsPartOfAnOuterTransaction)
{
    PageArrangement::save({{u"Inputs"_s, 1}});
    {
        const SettingsTransaction outer; // abandoned
        PageArrangement::save({{u"Inputs"_s, 2}, {u"Logs"_s, 2}});
        EXPECT_EQ(stored(u"Inputs"_s), u"2"_s);
    }
    EXPECT_EQ(stored(u"Inputs"_s), u"1"_s);
    EXPECT_EQ(stored(u"Logs"_s), QString());
}

TEST_F(PageArrangementTest, LoadsAsOfOneMoment)
{
    PageArrangement::save({{u"Code"_s, 1}, {u"Output Parameters"_s, 1}});
    const SettingsTransaction reading;
    EXPECT_EQ(stored(u"Code"_s), u"1"_s);
    {
        const ThreadState::Fresh other;
        setSettingsFile(folder.path(u"s"_s));
        PageArrangement::save({{u"Code"_s, 2}, {u"Output Parameters"_s, 2}});
    }
    EXPECT_EQ(PageArrangement::load().size(), 2);
}

TEST_F(PageArrangementTest, ComesBackAsItWasSaved)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    for (int round = 0; round < 50; ++round) {
        PageArrangement::PageNumbers pages{};
        QList<PageArrangement::Place> places;
        for (qint32 type = lowestType; type <= highestType; ++type) {
            const auto page = static_cast<qint16>(random.number(random.number(2) ? 1000 : 5));
            pages[static_cast<std::size_t>(type)] = page;
            places.insert(random.number(static_cast<int>(places.size()) + 1),
                          {displayName(type), page});
        }
        PageArrangement::save(places);
        ASSERT_EQ(PageArrangement::load(), PageArrangement::arranged(pages));
    }
}

TEST_F(PageArrangementTest, FivePagesHaveNames)
{
    EXPECT_EQ(PageArrangement::pageCaption(0), u"Basic Programming"_s);
    EXPECT_EQ(PageArrangement::pageCaption(1), u"Internal Points"_s);
    EXPECT_EQ(PageArrangement::pageCaption(2), u"Built-In Functions"_s);
    EXPECT_EQ(PageArrangement::pageCaption(3), u"Network Variables"_s);
    EXPECT_EQ(PageArrangement::pageCaption(4), u"Hardware Configuration"_s);
    for (const qint32 page : {-1, 5, 999, 1'000'000})
        EXPECT_EQ(PageArrangement::pageCaption(page), QString());
}

TEST_F(PageArrangementTest, PageKeysAndTagsCountFromPageNull)
{
    EXPECT_EQ(PageArrangement::pageKey(0), u"Page0"_s);
    EXPECT_EQ(PageArrangement::pageKey(999), u"Page999"_s);
    EXPECT_EQ(PageArrangement::pageTag, 13);
    EXPECT_EQ(PageArrangement::deviceTag, -1);
}
