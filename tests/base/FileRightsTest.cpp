// Files whose rights somebody has taken away.

#include "base/FileLock.h"
#include "base/FileReplacement.h"
#include "support/QtPrinters.h"
#include "support/TestFolder.h"
#include "support/WithoutRights.h"

#include <gtest/gtest.h>

#include <unistd.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr QFile::Permissions toRead =
    QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions toWrite =
    QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
constexpr QFile::Permissions toEnter =
    QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;

// Everybody may do this, while the test has no more rights than they.
class FileRights : public testing::Test
{
protected:
    FileRights()
    {
        QDir(folder.path({})).mkdir(u"f"_s);
        folder.write(u"f/a"_s, "old");
        allow(u"f"_s, toRead | toWrite | toEnter);
        allow(u"f/a"_s, toRead | toWrite);
    }
    ~FileRights() override { allow(u"f"_s, toRead | toWrite | toEnter); }

    void allow(const QString &name, QFile::Permissions rights) const
    {
        QFile::setPermissions(folder.path(name), rights);
    }
    QString file() const { return folder.path(u"f/a"_s); }

    TestFolder folder;
};

} // namespace

TEST_F(FileRights, AFileOfSomebodyElseIsReplaced)
{
    const WithoutRights rights(folder.path({}));
    FileReplacement replacement(file());
    ASSERT_TRUE(replacement.write("new") && replacement.commit());
    EXPECT_EQ(folder.content(u"f/a"_s), "new");
    EXPECT_EQ(QFile::permissions(file()) & QFile::WriteOther, QFile::WriteOther);
    EXPECT_EQ(folder.names(u"f"_s), QStringList(u"a"_s));
}

// Which only an administrator can see to.
TEST_F(FileRights, AFileKeepsItsOwner)
{
    const uid_t owner = ::geteuid() == 0 ? 1234 : ::geteuid();
    const QByteArray name = QFile::encodeName(file());
    ASSERT_EQ(::chown(name.constData(), owner, ::getegid()), 0);
    FileReplacement replacement(file());
    ASSERT_TRUE(replacement.write("new") && replacement.commit());
    EXPECT_EQ(folder.content(u"f/a"_s), "new");
    EXPECT_EQ(QFileInfo(file()).ownerId(), owner);
}

TEST_F(FileRights, AFileThatMayNotBeWrittenIsLeft)
{
    allow(u"f/a"_s, toRead);
    const WithoutRights rights(folder.path({}));
    {
        FileReplacement replacement(file());
        ASSERT_TRUE(replacement.write("new"));
        EXPECT_FALSE(replacement.commit());
        EXPECT_EQ(replacement.fault(), FileReplacement::Fault::ReadOnly);
        EXPECT_EQ(replacement.systemText(), QString());
    }
    EXPECT_EQ(folder.content(u"f/a"_s), "old");
    EXPECT_EQ(folder.names(u"f"_s), QStringList(u"a"_s));
}

TEST_F(FileRights, AFolderThatIsClosedMeanwhileIsTold)
{
    FileReplacement replacement(file());
    ASSERT_TRUE(replacement.write("new"));
    allow(u"f"_s, toRead | toEnter);
    {
        const WithoutRights rights(folder.path({}));
        EXPECT_FALSE(replacement.commit());
    }
    EXPECT_EQ(replacement.fault(), FileReplacement::Fault::System);
    EXPECT_FALSE(replacement.systemText().isEmpty());
    EXPECT_EQ(folder.content(u"f/a"_s), "old");
    allow(u"f"_s, toRead | toWrite | toEnter);
    EXPECT_TRUE(replacement.commit()); // as soon as it is open again
    EXPECT_EQ(folder.content(u"f/a"_s), "new");
}

TEST_F(FileRights, AFolderThatNobodyMayListTakesFiles)
{
    allow(u"f"_s, toWrite | toEnter);
    {
        const WithoutRights rights(folder.path({}));
        FileReplacement replacement(file());
        EXPECT_TRUE(replacement.write("new") && replacement.commit());
    }
    EXPECT_EQ(folder.content(u"f/a"_s), "new");
}

TEST_F(FileRights, ALockOfSomebodyElseNeedsOnlyReading)
{
    allow(u"f/a"_s, toRead);
    const WithoutRights rights(folder.path({}));
    const FileLock first(file(), 0ms);
    EXPECT_TRUE(first.isHeld());
    EXPECT_TRUE(FileLock(file(), 0ms).isHeldElsewhere());
}
