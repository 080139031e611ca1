#include "base/FileLock.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QFile>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

TEST(FileLock, HasOneHolder)
{
    const TestFolder folder;
    const QString name = folder.path(u"lock"_s);
    {
        const FileLock first(name, 0ms);
        ASSERT_TRUE(first.isHeld());
        EXPECT_FALSE(FileLock(name, 0ms).isHeld());
    }
    EXPECT_TRUE(FileLock(name, 0ms).isHeld());
}

TEST(FileLock, WaitsNoLongerThanItsPatience)
{
    const TestFolder folder;
    const FileLock holder(folder.path(u"lock"_s), 0ms);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(FileLock(folder.path(u"lock"_s), 40ms).isHeld());
    EXPECT_GE(timer.elapsed(), 40);
    EXPECT_LT(timer.elapsed(), 20000);
}

TEST(FileLock, IsTakenAsSoonAsItIsFree)
{
    const TestFolder folder;
    auto holder = std::make_unique<FileLock>(folder.path(u"lock"_s), 0ms);
    std::thread release([&holder] { holder.reset(); });
    EXPECT_TRUE(FileLock(folder.path(u"lock"_s), 60s).isHeld());
    release.join();
}

TEST(FileLock, IsNotHeldWhereItsFileCannotBe)
{
    const TestFolder folder;
    EXPECT_FALSE(FileLock(folder.path(u"missing/lock"_s), 0ms).isHeld());
    EXPECT_FALSE(FileLock(folder.path({}), 0ms).isHeld());
}

TEST(FileLock, TellsTwoReasonsApart)
{
    const TestFolder folder;
    const FileLock holder(folder.path(u"lock"_s), 0ms);
    EXPECT_FALSE(holder.isHeldElsewhere());
    EXPECT_TRUE(FileLock(folder.path(u"lock"_s), 0ms).isHeldElsewhere());
    EXPECT_FALSE(FileLock(folder.path(u"missing/lock"_s), 0ms).isHeldElsewhere());
}

TEST(FileLock, TakesItsFileAwayWhereThatIsWanted)
{
    const TestFolder folder;
    const QString name = folder.path(u"lock"_s);
    {
        const FileLock holder(name, 0ms, FileLock::File::Goes);
        EXPECT_TRUE(holder.isInPlace());
        EXPECT_FALSE(FileLock(name, 0ms, FileLock::File::Goes).isHeld());
        EXPECT_TRUE(QFile::exists(name)); // who has no lock takes nothing away
    }
    EXPECT_FALSE(QFile::exists(name));
    {
        const FileLock holder(name, 0ms);
    }
    EXPECT_TRUE(QFile::exists(name));
}

TEST(FileLock, KnowsThatItsFileHasGone)
{
    const TestFolder folder;
    const QString name = folder.path(u"lock"_s);
    auto former = std::make_unique<FileLock>(name, 0ms, FileLock::File::Goes);
    ASSERT_TRUE(QFile::rename(name, folder.path(u"moved"_s)));
    EXPECT_FALSE(former->isInPlace());
    const FileLock next(name, 0ms, FileLock::File::Goes);
    EXPECT_TRUE(next.isHeld());
    former.reset();
    EXPECT_TRUE(QFile::exists(name)); // the next one's
}

TEST(FileLock, OfTwoWhoWaitOneHoldsTheFileThatComesNext)
{
    const TestFolder folder;
    const QString name = folder.path(u"lock"_s);
    std::atomic<int> holders = 0;
    std::atomic<bool> wereTwo = false;
    const auto work = [&] {
        for (int round = 0; round < 50; ++round) {
            const FileLock lock(name, 60s, FileLock::File::Goes);
            if (!lock.isHeld() || ++holders > 1)
                wereTwo = true;
            std::this_thread::yield();
            --holders;
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_FALSE(wereTwo);
}
