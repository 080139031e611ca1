#include "base/ThreadState.h"
#include "shared/points/DisplayNames.h"
#include "shared/settings/SettingsProcess.h"
#include "support/DiskLimits.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"
#include "support/RandomText.h"
#include "support/TestFolder.h"
#include <ORVTListview/SettingsStore.h>

#include <QtCore/QElapsedTimer>
#include <QtCore/QSet>
#include <QtCore/QThread>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The settings shared with other processes are those of the file "s".
class SettingsProcessesTest : public testing::Test
{
protected:
    SettingsProcessesTest() { setSettingsFile(path()); }

    QString path() const { return folder.path(u"s"_s); }

    // The numbers of all types, of one moment; one number if they agree.
    static QSet<QString> arrangement()
    {
        const SettingsTransaction reading;
        QSet<QString> numbers;
        for (qint32 type = lowestType; type <= highestType; ++type)
            numbers.insert(ReadSetting(u"Quillbox"_s, displayName(type)));
        return numbers;
    }

    // From the start of a process to the first arrangement that it has saved.
    int microsecondsToFirstSave() const
    {
        QElapsedTimer timer;
        timer.start();
        SettingsProcess process(with({u"arrange-forever"_s}));
        EXPECT_TRUE(process.waitForOutput());
        return static_cast<int>(timer.nsecsElapsed() / 1000);
    }

    QStringList with(const QStringList &commands) const
    {
        return QStringList({u"file"_s, path()}) + commands;
    }

    const QStringList writeLong{u"write-long"_s, u"Quillbox"_s, u"Code"_s, u"20000"_s};
    const QStringList readBoth{u"read"_s, u"Quillbox"_s, u"Code"_s,
                               u"read"_s, u"Quillbox"_s, u"Logs"_s};
    ThreadState::Fresh fresh;
    TestFolder folder;
};

} // namespace

// Killed at any moment, a process leaves the arrangement that it saved last or
// the one that it was saving, whole.
TEST_F(SettingsProcessesTest, AKillLeavesTheOldOrTheNewArrangement)
{
    RandomText random;
    SCOPED_TRACE(random.seed());
    const int usual = microsecondsToFirstSave();
    int saved = 0;
    QString before = *arrangement().begin();
    const int kills = randomSteps(200);
    for (int kill = 0; kill < kills; ++kill) {
        SettingsProcess process(with({u"arrange-forever"_s}));
        QThread::usleep(static_cast<unsigned long>(usual / 2 + random.number(3 * usual / 2)));
        process.kill();
        const QStringList reported = process.lines();
        const QString last = reported.isEmpty() ? before : reported.last();
        const QString next = QString::number(reported.size() + 1);

        const QSet<QString> found = arrangement();
        ASSERT_EQ(found.size(), 1) << "a mixed arrangement after kill " << kill;
        before = *found.begin();
        ASSERT_TRUE(before == last || before == next)
            << testing::PrintToString(before) << " after " << testing::PrintToString(last);
        saved += reported.isEmpty() ? 0 : 1;
    }
    EXPECT_GT(saved, kills / 10) << "killed too early to show anything";
    QStringList names = folder.names();
    names.removeOne(u"s.new"_s);
    EXPECT_EQ(names, QStringList({u"s"_s, u"s.lock"_s}));
}

TEST_F(SettingsProcessesTest, WritersAtTheSameTimeLoseNothing)
{
    const QStringList prefixes{u"a"_s, u"b"_s, u"c"_s, u"d"_s};
    std::vector<std::unique_ptr<SettingsProcess>> writers;
    for (const QString &prefix : prefixes)
        writers.push_back(
            std::make_unique<SettingsProcess>(with({u"write-many"_s, u"App"_s, prefix, u"50"_s})));
    for (const auto &writer : writers)
        ASSERT_EQ(writer->exitCode(), 0);
    const SettingsTransaction reading;
    for (const QString &prefix : prefixes) {
        for (int i = 0; i < 50; ++i)
            ASSERT_EQ(ReadSetting(u"App"_s, prefix + QString::number(i)),
                      u"%1 of %2"_s.arg(i).arg(prefix));
    }
}

TEST_F(SettingsProcessesTest, AReaderNeverSeesAMixedArrangement)
{
    SettingsProcess writer(with({u"arrange-forever"_s}));
    QSet<QString> seen;
    while (seen.size() < 50) {
        const QSet<QString> found = arrangement();
        ASSERT_EQ(found.size(), 1);
        seen += found;
        ASSERT_TRUE(writer.isRunning());
    }
}

// The arrangement is saved; then one value is made too long for the room there
// is. The last room is large enough, to show that the others were not.
TEST_F(SettingsProcessesTest, AFullDiskLeavesTheOldFile)
{
    const QString disk = folder.path(u"disk"_s);
    ASSERT_TRUE(QDir().mkpath(disk));
    const QStringList tight{u"0"_s, u"4096"_s, u"8192"_s, u"16384"_s};
    for (const QString &room : tight + QStringList(u"40960"_s)) {
        SettingsProcess process(
            QStringList({u"mount"_s, disk, u"65536"_s, u"file"_s, disk + u"/s"_s}) +
            QStringList({u"arrange"_s, u"1"_s, u"fill"_s, disk, room}) + writeLong + readBoth +
            QStringList({u"list"_s, disk}));
        if (process.exitCode() == DiskLimits::notPermitted)
            GTEST_SKIP() << "no file system may be mounted here: "
                         << process.errors().toStdString();
        ASSERT_EQ(process.exitCode(), 0);
        const QString value = tight.contains(room) ? u"1"_s : QString(20000, u'x');
        EXPECT_EQ(process.lines(), QStringList({value, u"1"_s, u"filling s s.lock"_s}))
            << room.toStdString();
    }
}

// The same where nothing may be mounted: the system takes only a part of a write.
TEST_F(SettingsProcessesTest, AShortWriteLeavesTheOldFile)
{
    const QStringList tight{u"0"_s, u"1"_s, u"512"_s, u"19000"_s};
    for (const QString &largest : tight + QStringList(u"30000"_s)) {
        QFile::remove(path());
        SettingsProcess process(with(QStringList({u"arrange"_s, u"1"_s, u"limit"_s, largest}) +
                                     writeLong + readBoth +
                                     QStringList({u"list"_s, folder.path({})})));
        ASSERT_EQ(process.exitCode(), 0) << process.errors().toStdString();
        const QString value = tight.contains(largest) ? u"1"_s : QString(20000, u'x');
        EXPECT_EQ(process.lines(), QStringList({value, u"1"_s, u"s s.lock"_s}))
            << largest.toStdString();
    }
}
