#include "base/LockedFile.h"
#include "base/SystemPathWindows.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

// Until the last one who has it open closes it, a file that was removed keeps its name,
// and nobody can open it.
TEST(LockedFile, AFileThatGoesIsHeldElsewhere)
{
    const TestFolder folder;
    const QString name = folder.path(u"lock"_s);
    HANDLE going = CreateFileW(systemPath(name).c_str(), GENERIC_WRITE | DELETE,
                               FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                               CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(going, INVALID_HANDLE_VALUE);
    FILE_DISPOSITION_INFO info = {};
    info.DeleteFile = TRUE;
    ASSERT_TRUE(SetFileInformationByHandle(going, FileDispositionInfo, &info, sizeof info));
    EXPECT_EQ(LockedFile(name, QDeadlineTimer(20)).state(), LockedFile::State::HeldElsewhere);
    CloseHandle(going);
    EXPECT_EQ(LockedFile(name, QDeadlineTimer(20)).state(), LockedFile::State::Held);
}

TEST(LockedFile, AFolderInItsPlaceIsImpossible)
{
    const TestFolder folder;
    EXPECT_EQ(LockedFile(folder.path({}), QDeadlineTimer(20)).state(),
              LockedFile::State::Impossible);
}
