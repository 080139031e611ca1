#include <ORVTListview/SettingsStore.h>

#include "base/ThreadState.h"
#include "shared/points/DisplayNames.h"
#include "support/QtPrinters.h"
#include "support/RandomText.h"
#include "support/TestFolder.h"

#include <QtCore/QScopeGuard>

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QString read(const QString &name)
{
    return ReadSetting(u"Quillbox"_s, name);
}

void write(const QString &name, const QString &value)
{
    WriteSetting(u"Quillbox"_s, name, value);
}

class SettingsStoreTest : public testing::Test
{
protected:
    SettingsStoreTest() { setSettingsFile(folder.path(u"s"_s)); }

    ThreadState::Fresh fresh;
    TestFolder folder;
};

} // namespace

TEST_F(SettingsStoreTest, AMissingValueReadsAsEmpty)
{
    EXPECT_EQ(read(u"Code"_s), u""_s);
    write(u"Logs"_s, u"3"_s);
    EXPECT_EQ(read(u"Code"_s), u""_s);
    EXPECT_EQ(ReadSetting(u"Other"_s, u"Logs"_s), u""_s);
}

TEST_F(SettingsStoreTest, AValueReadsBackAsItWasWritten)
{
    write(u"Code"_s, u"3"_s);
    EXPECT_EQ(read(u"Code"_s), u"3"_s);
    write(u"Code"_s, u"4"_s);
    EXPECT_EQ(read(u"Code"_s), u"4"_s);
}

TEST_F(SettingsStoreTest, ASingleBlankReadsAsEmpty)
{
    write(u"Code"_s, u" "_s);
    EXPECT_EQ(read(u"Code"_s), u""_s);
    write(u"Code"_s, u"  "_s);
    EXPECT_EQ(read(u"Code"_s), u"  "_s);
    write(u"Code"_s, u"\t"_s);
    EXPECT_EQ(read(u"Code"_s), u"\t"_s);
}

TEST_F(SettingsStoreTest, EmptyTextReadsBackAsEmpty)
{
    write(u"Code"_s, u"3"_s);
    write(u"Code"_s, u""_s);
    EXPECT_EQ(read(u"Code"_s), u""_s);
}

TEST_F(SettingsStoreTest, EveryTypeHasASettingOfItsOwn)
{
    for (qint32 type = lowestType; type <= highestType; ++type)
        write(displayName(type), QString::number(type));
    for (qint32 type = lowestType; type <= highestType; ++type)
        EXPECT_EQ(read(displayName(type)), QString::number(type));
    for (qint32 type = lowestType; type <= highestType; ++type)
        EXPECT_TRUE(folder.content(u"s"_s).contains(
            u"\n%1=%2\n"_s.arg(displayName(type)).arg(type).toUtf8()));
    EXPECT_TRUE(folder.content(u"s"_s).contains("[Software/Morvane Systems Inc/Quillbox]\n"));
}

TEST_F(SettingsStoreTest, ApplicationsAreApart)
{
    WriteSetting(u"A"_s, u"x"_s, u"1"_s);
    WriteSetting(u"a"_s, u"x"_s, u"2"_s);
    WriteSetting(u""_s, u"x"_s, u"3"_s);
    WriteSetting(u"A]\n[B"_s, u"x"_s, u"4"_s);
    EXPECT_EQ(ReadSetting(u"A"_s, u"x"_s), u"1"_s);
    EXPECT_EQ(ReadSetting(u"a"_s, u"x"_s), u"2"_s);
    EXPECT_EQ(ReadSetting(u""_s, u"x"_s), u"3"_s);
    EXPECT_EQ(ReadSetting(u"A]\n[B"_s, u"x"_s), u"4"_s);
    EXPECT_EQ(ReadSetting(u"B"_s, u"x"_s), u""_s);
}

TEST_F(SettingsStoreTest, AnyTextComesBack)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    for (int round = 0; round < 10; ++round) {
        std::map<QString, QString> texts;
        SettingsTransaction transaction;
        for (int i = 0; i < 100; ++i) {
            const QString name = random.text(8);
            texts[name] = random.text(30);
            write(name, texts[name]);
        }
        transaction.commit();
        SettingsTransaction reading;
        for (const auto &[name, text] : texts)
            ASSERT_EQ(read(name), text == u" "_s ? u""_s : text) << testing::PrintToString(name);
    }
}

TEST_F(SettingsStoreTest, ALongTextComesBack)
{
    const QString text = u"0123456789\r\n\"é"_s.repeated(50000);
    write(u"Code"_s, text);
    EXPECT_TRUE(read(u"Code"_s) == text);
}

TEST_F(SettingsStoreTest, FailuresAreSilent)
{
    folder.write(u"d/x"_s, "x");
    setSettingsFile(folder.path(u"d"_s));
    write(u"Code"_s, u"3"_s);
    EXPECT_EQ(read(u"Code"_s), u""_s);
    EXPECT_EQ(folder.names(u"d"_s), QStringList(u"x"_s));
}

TEST_F(SettingsStoreTest, ATransactionIsSavedAtItsCommit)
{
    write(u"Code"_s, u"1"_s);
    SettingsTransaction transaction;
    write(u"Code"_s, u"2"_s);
    write(u"Logs"_s, u"3"_s);
    write(u"Logs"_s, u"4"_s);
    EXPECT_EQ(read(u"Code"_s), u"2"_s);
    EXPECT_EQ(read(u"Logs"_s), u"4"_s);
    EXPECT_TRUE(folder.content(u"s"_s).contains("Code=1"));
    EXPECT_FALSE(folder.content(u"s"_s).contains("Logs"));
    transaction.commit();
    EXPECT_TRUE(folder.content(u"s"_s).contains("Code=2"));
    EXPECT_TRUE(folder.content(u"s"_s).contains("Logs=4"));
    write(u"Code"_s, u"5"_s);
    EXPECT_EQ(read(u"Code"_s), u"5"_s);
    transaction.commit();
    EXPECT_EQ(read(u"Code"_s), u"5"_s);
}

TEST_F(SettingsStoreTest, ATransactionWithoutCommitIsAsIfItNeverWas)
{
    write(u"Code"_s, u"1"_s);
    {
        SettingsTransaction transaction;
        write(u"Code"_s, u"2"_s);
        write(u"Logs"_s, u"3"_s);
    }
    EXPECT_EQ(read(u"Code"_s), u"1"_s);
    EXPECT_EQ(read(u"Logs"_s), u""_s);
}

TEST_F(SettingsStoreTest, AnInnerTransactionIsPartOfTheOuter)
{
    SettingsTransaction outer;
    write(u"Code"_s, u"1"_s);
    {
        SettingsTransaction inner;
        write(u"Code"_s, u"2"_s);
        inner.commit();
    }
    EXPECT_EQ(read(u"Code"_s), u"2"_s);
    {
        SettingsTransaction inner;
        write(u"Code"_s, u"3"_s);
    }
    EXPECT_EQ(read(u"Code"_s), u"2"_s);
    EXPECT_EQ(folder.names(), QStringList());
    outer.commit();
    EXPECT_TRUE(folder.content(u"s"_s).contains("Code=2"));
}

TEST_F(SettingsStoreTest, ATransactionReadsOfOneMoment)
{
    write(u"Code"_s, u"1"_s);
    write(u"Logs"_s, u"1"_s);
    {
        SettingsTransaction transaction;
        EXPECT_EQ(read(u"Code"_s), u"1"_s);
        {
            const ThreadState::Fresh other;
            setSettingsFile(folder.path(u"s"_s));
            write(u"Code"_s, u"2"_s);
            write(u"Logs"_s, u"2"_s);
        }
        EXPECT_EQ(read(u"Logs"_s), u"1"_s);
    }
    EXPECT_EQ(read(u"Logs"_s), u"2"_s);
}

TEST_F(SettingsStoreTest, TheLaterOfTwoWritersWins)
{
    write(u"Code"_s, u"1"_s);
    SettingsTransaction transaction;
    write(u"Code"_s, u"2"_s);
    {
        const ThreadState::Fresh other;
        setSettingsFile(folder.path(u"s"_s));
        write(u"Code"_s, u"3"_s);
        write(u"Logs"_s, u"4"_s);
    }
    transaction.commit();
    EXPECT_EQ(read(u"Code"_s), u"2"_s);
    EXPECT_EQ(read(u"Logs"_s), u"4"_s); // not written by the transaction
}

TEST_F(SettingsStoreTest, AnotherFileMayBeNamedAtAnyTime)
{
    write(u"Code"_s, u"1"_s);
    setSettingsFile(folder.path(u"t"_s));
    EXPECT_EQ(read(u"Code"_s), u""_s);
    write(u"Code"_s, u"2"_s);
    setSettingsFile(folder.path(u"s"_s));
    EXPECT_EQ(read(u"Code"_s), u"1"_s);
}

TEST_F(SettingsStoreTest, WithoutANameTheUsualPlaceIsUsedAgain)
{
    constexpr auto variable = "ORVT_SETTINGS_FILE";
    const QByteArray before = qgetenv(variable);
    qputenv(variable, QFile::encodeName(folder.path(u"usual"_s)));
    const auto restore = qScopeGuard([&] { qputenv(variable, before); });
    write(u"Code"_s, u"1"_s);
    setSettingsFile({});
    EXPECT_EQ(read(u"Code"_s), u""_s);
    write(u"Code"_s, u"2"_s);
    EXPECT_TRUE(folder.content(u"usual"_s).contains("Code=2"));
    EXPECT_TRUE(folder.content(u"s"_s).contains("Code=1"));
}
