#include "base/FileLock.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"

#include <QtCore/QElapsedTimer>

#include <gtest/gtest.h>

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
