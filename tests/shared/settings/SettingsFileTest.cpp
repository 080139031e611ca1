#include "shared/settings/SettingsFile.h"

#include "base/FileLock.h"
#include "support/DiskLimits.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const SettingKey code{u"Quillbox"_s, u"Code"_s};
const SettingKey logs{u"Quillbox"_s, u"Logs"_s};

// One settings file, "s", in a folder of its own.
class SettingsFileTest : public testing::Test
{
protected:
    QString path() const { return folder.path(u"s"_s); }

    // "none" tells an absent setting from an empty one.
    QString value(const SettingKey &key = code) const
    {
        return SettingsFile(path()).view()->value(key).value_or(u"none"_s);
    }

    bool write(const QString &text, const SettingKey &key = code) const
    {
        return SettingsFile(path()).write({{key, text}});
    }

    // Whatever bad is in the file's place: nothing is read, a write succeeds, and
    // the bad file is kept.
    void expectKeptBeside(const QByteArray &bad)
    {
        folder.write(u"s"_s, bad);
        EXPECT_EQ(value(), u"none"_s);
        EXPECT_TRUE(folder.content(u"s"_s) == bad); // reading changes nothing
        EXPECT_TRUE(write(u"3"_s));
        EXPECT_EQ(value(), u"3"_s);
        EXPECT_TRUE(folder.content(u"s.damaged-1"_s) == bad);
        EXPECT_EQ(folder.names(), QStringList({u"s"_s, u"s.damaged-1"_s, u"s.lock"_s}));
    }

    TestFolder folder;
};

} // namespace

TEST_F(SettingsFileTest, AMissingFileHoldsNothingAndIsCreated)
{
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_EQ(folder.names(), QStringList()); // reading creates nothing
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_EQ(folder.names(), QStringList({u"s"_s, u"s.lock"_s}));
}

TEST_F(SettingsFileTest, MissingFoldersAreCreated)
{
    SettingsFile file(folder.path(u"a/b/s"_s));
    EXPECT_TRUE(file.write({{code, u"3"_s}}));
    EXPECT_EQ(file.view()->value(code), u"3"_s);
}

TEST_F(SettingsFileTest, AnEmptyFileHoldsNothingAndIsNotKept)
{
    folder.write(u"s"_s, {});
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_EQ(folder.names(), QStringList({u"s"_s, u"s.lock"_s}));
}

TEST_F(SettingsFileTest, ATruncatedFileIsKeptBeside)
{
    ASSERT_TRUE(write(u"12"_s));
    const QByteArray whole = folder.content(u"s"_s);
    ASSERT_TRUE(QFile::remove(folder.path(u"s.lock"_s)));
    expectKeptBeside(whole.first(whole.indexOf("12") + 1));
}

TEST_F(SettingsFileTest, AFileOfNulsIsKeptBeside)
{
    expectKeptBeside(QByteArray(500, '\0'));
}

TEST_F(SettingsFileTest, ABinaryFileIsKeptBeside)
{
    QByteArray bytes;
    for (int i = 0; i < 4096; ++i)
        bytes += static_cast<char>(i * 7 + i / 256);
    expectKeptBeside(bytes);
}

TEST_F(SettingsFileTest, TenMegabytesOfRubbishAreKeptBeside)
{
    expectKeptBeside(QByteArray("[x]\n") + QByteArray(10 * 1024 * 1024, '\x80'));
}

TEST_F(SettingsFileTest, AHugeFileIsKeptBesideUnread)
{
    folder.write(u"s"_s, {});
    ASSERT_TRUE(QFile::resize(path(), 3LL * 1024 * 1024 * 1024)); // sparse
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_EQ(QFileInfo(folder.path(u"s.damaged-1"_s)).size(), 3LL * 1024 * 1024 * 1024);
}

TEST_F(SettingsFileTest, EveryDamagedFileGetsANameOfItsOwn)
{
    for (const QByteArray &bad :
         {QByteArray("\0a", 2), QByteArray("\0b", 2), QByteArray("\0c", 2)}) {
        folder.write(u"s"_s, bad);
        EXPECT_TRUE(write(u"3"_s));
    }
    EXPECT_EQ(folder.content(u"s.damaged-1"_s), QByteArray("\0a", 2));
    EXPECT_EQ(folder.content(u"s.damaged-2"_s), QByteArray("\0b", 2));
    EXPECT_EQ(folder.content(u"s.damaged-3"_s), QByteArray("\0c", 2));
}

TEST_F(SettingsFileTest, TenMegabytesOfSettingsAreReadAndWritten)
{
    QByteArray settings = "[Software/Morvane Systems Inc/Other]\n";
    for (int i = 0; settings.size() < 10 * 1024 * 1024; ++i)
        settings += "setting " + QByteArray::number(i) + " = a value of some length\n";
    folder.write(u"s"_s, settings);
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_EQ(value({u"Other"_s, u"setting 1000"_s}), u"a value of some length"_s);
    EXPECT_TRUE(folder.content(u"s"_s).contains(settings));
}

TEST_F(SettingsFileTest, ADamagedFileIsKeptWhateverItsFolderIsCalled)
{
    for (const QString &name : {u"a%2b/s"_s, u"%1/s"_s, u"%L1%99/s"_s}) {
        folder.write(name, "\1");
        SettingsFile file(folder.path(name));
        EXPECT_TRUE(file.write({{code, u"3"_s}}));
        EXPECT_EQ(file.view()->value(code), u"3"_s);
        EXPECT_EQ(folder.content(name + u".damaged-1"_s), "\1");
    }
}

TEST_F(SettingsFileTest, AFolderInItsPlaceIsLeftAlone)
{
    folder.write(u"s/precious"_s, "x");
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_FALSE(write(u"3"_s));
    EXPECT_EQ(folder.names(), QStringList(u"s"_s)); // and no lock is left beside it
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_EQ(folder.content(u"s/precious"_s), "x");
}

TEST_F(SettingsFileTest, APipeInItsPlaceIsNotWaitedFor)
{
    ASSERT_TRUE(DiskLimits::makePipe(path()));
    EXPECT_EQ(value(), u"none"_s);
    EXPECT_FALSE(write(u"3"_s));
    EXPECT_EQ(folder.names(), QStringList(u"s"_s));
}

TEST_F(SettingsFileTest, ALinkToADeviceLeavesNothingBesideTheDevice)
{
    ASSERT_TRUE(QFile::link(u"/dev/null"_s, path()));
    EXPECT_FALSE(write(u"3"_s));
    EXPECT_EQ(folder.names(), QStringList(u"s"_s));
    EXPECT_FALSE(QFileInfo::exists(u"/dev/null.lock"_s));
    EXPECT_FALSE(QFileInfo::exists(u"/dev/null.new"_s));
}

TEST_F(SettingsFileTest, AFileInPlaceOfItsFolderIsLeftAlone)
{
    folder.write(u"a"_s, "x");
    SettingsFile file(folder.path(u"a/s"_s));
    EXPECT_FALSE(file.write({{code, u"3"_s}}));
    EXPECT_EQ(file.view()->value(code), std::nullopt);
    EXPECT_EQ(folder.content(u"a"_s), "x");
}

TEST_F(SettingsFileTest, ALinkIsFollowed)
{
    folder.write(u"real/file"_s, "# mine\n");
    ASSERT_TRUE(QFile::link(folder.path(u"real/file"_s), path()));
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(folder.content(u"real/file"_s).contains("# mine\n"));
    EXPECT_TRUE(folder.content(u"real/file"_s).contains("Code=3"));
}

TEST_F(SettingsFileTest, ALinkToAMissingFileIsFollowed)
{
    ASSERT_TRUE(QFile::link(u"real/file"_s, path()));
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_EQ(value(), u"3"_s);
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(folder.content(u"real/file"_s).contains("Code=3"));
    EXPECT_EQ(folder.names(u"real"_s), QStringList({u"file"_s, u"file.lock"_s}));
}

TEST_F(SettingsFileTest, LinksInACircleAreLeftAlone)
{
    ASSERT_TRUE(QFile::link(u"s"_s, folder.path(u"t"_s)));
    ASSERT_TRUE(QFile::link(u"t"_s, path()));
    EXPECT_FALSE(write(u"3"_s));
    EXPECT_EQ(folder.names(), QStringList({u"s"_s, u"t"_s}));
}

TEST_F(SettingsFileTest, WritingWhatIsThereTouchesNothing)
{
    ASSERT_TRUE(write(u"3"_s));
    folder.write(u"s"_s, folder.content(u"s"_s).replace("; end", "  ; end"));
    const QByteArray before = folder.content(u"s"_s);
    EXPECT_TRUE(write(u"3"_s));
    EXPECT_TRUE(SettingsFile(path()).write({{logs, std::nullopt}}));
    EXPECT_EQ(folder.content(u"s"_s), before);
}

TEST_F(SettingsFileTest, WhileAnotherWritesItWaitsAndThenGivesUp)
{
    ASSERT_TRUE(write(u"3"_s));
    const QByteArray before = folder.content(u"s"_s);
    SettingsFile hasty(path(), 20ms);
    {
        const FileLock other(path() + u".lock"_s, 0ms);
        EXPECT_FALSE(hasty.write({{code, u"4"_s}}));
        EXPECT_EQ(value(), u"3"_s); // reading waits for nobody
    }
    EXPECT_EQ(folder.content(u"s"_s), before);
    EXPECT_TRUE(hasty.write({{code, u"4"_s}}));
    EXPECT_EQ(value(), u"4"_s);
}

TEST_F(SettingsFileTest, ARelativeNameStaysWhereItWas)
{
    const QString former = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path({})));
    SettingsFile file(u"s"_s);
    ASSERT_TRUE(QDir::setCurrent(former));
    EXPECT_TRUE(file.write({{code, u"3"_s}}));
    EXPECT_EQ(value(), u"3"_s);
}
