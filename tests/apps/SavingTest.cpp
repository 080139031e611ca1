// Saving loses nothing: afterwards the file holds the old program and an error
// was raised, or it holds the new one.

#include "ProjectFolder.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "support/DiskLimits.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Outcome
{
    int status;
    QStringList lines;
};

Outcome runHelper(const QString &way, const QString &file)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(ORVT_SAVING_HELPER), {way, file});
    process.waitForFinished(60000);
    const QString out = QString::fromUtf8(process.readAllStandardOutput().replace("\r\n", "\n"));
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            out.split(u'\n', Qt::SkipEmptyParts)};
}

// 14,859 bytes need four pages.
QStringList expected(const QString &names)
{
    return QStringList(4, u"refused old "_s + names) + QStringList(13, u"saved new "_s + names);
}

constexpr QFile::Permissions usersOwn = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions toRead = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr QFile::Permissions toWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
constexpr QFile::Permissions toEnter = QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

} // namespace

TEST(Saving, AFullDiskLeavesTheOldProgram)
{
    const ProjectFolder folder;
    const Outcome outcome = runHelper(u"disk"_s, folder.path(u"p"_s));
    if (outcome.status == DiskLimits::notPermitted)
        GTEST_SKIP() << "no file system may be mounted here";
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.lines, expected(u"filling p"_s));
}

// The same where nothing may be mounted: the system takes only a part of a write.
TEST(Saving, AShortWriteLeavesTheOldProgram)
{
    const ProjectFolder folder;
    const Outcome outcome = runHelper(u"limit"_s, folder.path(u"p"_s));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.lines, expected(u"p"_s));
}

TEST(Saving, FollowsLinks)
{
    const ProjectFolder folder;
    ASSERT_TRUE(QDir().mkdir(folder.path(u"real"_s)));
    const QString real = folder.write(u"real/p"_s, "old");
    ASSERT_TRUE(QFile::link(u"real/p"_s, folder.path(u"inner"_s)));
    ASSERT_TRUE(QFile::link(folder.path(u"inner"_s), folder.path(u"outer"_s)));
    writeFile(folder.path(u"outer"_s), "new");
    EXPECT_EQ(readFile(real), "new");
    EXPECT_TRUE(QFileInfo(folder.path(u"outer"_s)).isSymLink());
    EXPECT_TRUE(QFileInfo(folder.path(u"inner"_s)).isSymLink());
}

// "here/.." is not the folder that here stands in.
TEST(Saving, FollowsALinkInAFolderThatIsALink)
{
    const ProjectFolder folder;
    ASSERT_TRUE(QDir().mkpath(folder.path(u"far/inner"_s)));
    const QString real = folder.write(u"far/p"_s, "old");
    ASSERT_TRUE(QFile::link(folder.path(u"far/inner"_s), folder.path(u"here"_s)));
    ASSERT_TRUE(QFile::link(u"../p"_s, folder.path(u"far/inner/link"_s)));
    writeFile(folder.path(u"here/link"_s), "new");
    EXPECT_EQ(readFile(real), "new");
    EXPECT_FALSE(QFileInfo::exists(folder.path(u"p"_s)));
}

TEST(Saving, KeepsTheRights)
{
    const ProjectFolder folder;
    const QString file = folder.write(u"p"_s, "old");
    for (const QFile::Permissions rights :
         {usersOwn, usersOwn | QFile::ReadGroup | QFile::WriteGroup,
          toRead | toEnter | QFile::WriteOwner}) {
        ASSERT_TRUE(QFile::setPermissions(file, rights));
        const QFile::Permissions before = QFile::permissions(file);
        EXPECT_EQ(before & rights, rights);
        writeFile(file, "new");
        EXPECT_EQ(QFile::permissions(file), before);
    }
}

TEST(Saving, ANewFileHasTheUsualRights)
{
    const ProjectFolder folder;
    const QString usual = folder.write(u"usual"_s, "x");
    writeFile(folder.path(u"p"_s), "new");
    EXPECT_EQ(QFile::permissions(folder.path(u"p"_s)), QFile::permissions(usual));
}

TEST(Saving, WorksForTheLongestNames)
{
    const ProjectFolder folder;
    const QString file = folder.path(QString(255, u'p'));
    writeFile(file, "old");
    writeFile(file, "new");
    EXPECT_EQ(readFile(file), "new");
}

TEST(Saving, LeavesTheFilesBesideIt)
{
    const ProjectFolder folder;
    folder.write(u"p.new"_s, "mine");
    writeFile(folder.path(u"p"_s), "new");
    EXPECT_EQ(readFile(folder.path(u"p.new"_s)), "mine");
    EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files | QDir::Hidden),
              QStringList({u"p"_s, u"p.new"_s}));
}

TEST(Saving, AFileWithoutTheRightToWriteStays)
{
    const ProjectFolder folder;
    ASSERT_TRUE(QFile::setPermissions(folder.path(u"."_s), toRead | toWrite | toEnter));
    const QString file = folder.write(u"p"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(file, toRead));
    const Outcome outcome = runHelper(u"powerless"_s, file);
    EXPECT_EQ(outcome.lines, QStringList(file + u": may only be read"_s));
    EXPECT_EQ(readFile(file), "old");
}

// Writing into the file itself would lose it on a full disk.
TEST(Saving, AFolderThatTakesNoFileIsNamed)
{
    const ProjectFolder folder;
    const QString file = folder.write(u"p"_s, "old");
    ASSERT_TRUE(QFile::setPermissions(file, toRead | toWrite));
    ASSERT_TRUE(QFile::setPermissions(folder.path(u"."_s), toRead | toEnter));
    const Outcome outcome = runHelper(u"powerless"_s, file);
    ASSERT_TRUE(QFile::setPermissions(folder.path(u"."_s), toRead | toEnter | QFile::WriteOwner));
    EXPECT_EQ(outcome.lines,
              QStringList(file + u": its folder takes no new file (Permission denied)"_s));
    EXPECT_EQ(readFile(file), "old");
}

TEST(Saving, WhatIsNoFileIsLeftAlone)
{
    const ProjectFolder folder;
    const QString pipe = folder.path(u"pipe"_s);
    ASSERT_TRUE(DiskLimits::makePipe(pipe));
    ASSERT_TRUE(QFile::link(u"circle"_s, folder.path(u"circle"_s)));
    for (const QString &name : {u"."_s, u"pipe"_s, u"circle"_s}) {
        const auto error = raisedBy([&] { writeFile(folder.path(name), "new"); });
        ASSERT_TRUE(error) << name.toStdString();
        EXPECT_EQ(error->Number(), FileNotWritable);
        EXPECT_EQ(error->Description(), folder.path(name) + u": is not a file"_s);
    }
    EXPECT_EQ(QDir(folder.path({}))
                  .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList({u"circle"_s, u"pipe"_s}));
}
