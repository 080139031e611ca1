// What is not saved is kept in a text file beside the project, or in the user's folder.

#include "apps/ProjectFolder.h"
#include "project/Project.h"
#include "project/RecoveryFile.h"
#include "project/RecoverySlot.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"
#include "support/WithoutRights.h"

#include <QtCore/QDir>
#include <QtCore/QStandardPaths>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class Recovery : public ::testing::Test
{
protected:
    Recovery() { qputenv("XDG_DATA_HOME", m_data.path({}).toUtf8()); }

    ProjectFolder m_folder;
    ProjectFolder m_data;
    QString m_project = m_folder.write(u"p.json"_s, "{}");
};

RecoverySlot free(const QString &project)
{
    return *std::move(RecoverySlot::slotsOf(project).own);
}

} // namespace

TEST_F(Recovery, AFileTellsAllThatWasKept)
{
    const RecoveredWork work{u"/a b/ä.json"_s,
                             QDateTime::fromString(u"2026-01-02T03:04:05Z"_s, Qt::ISODate),
                             "{\"name\": \"\n==== x, 3 bytes ====\n\"}",
                             {u"A\r\nkept: \tB é\r\n\r\n==== program, 1 bytes ====\r\n"_s}};
    const QByteArray text = recoveryText(work);
    EXPECT_TRUE(text.contains("\nA\nkept: \tB \xC3\xA9\n\n"));
    EXPECT_EQ(readRecovery(text), work);
    for (qsizetype size = 0; size < text.size() - 1; ++size)
        EXPECT_FALSE(readRecovery(text.first(size))) << size;
}

TEST_F(Recovery, AFileTellsOfSeveralPrograms)
{
    const RecoveredWork work{u"/p.json"_s,
                             QDateTime::fromString(u"2026-01-02T03:04:05Z"_s, Qt::ISODate),
                             "{}",
                             {u"A\r\nprograms: 9\r\n"_s, {}, u"==== C, 1 bytes ====\r\n"_s}};
    const QByteArray text = recoveryText(work);
    EXPECT_EQ(readRecovery(text), work);
    for (qsizetype size = 0; size < text.size() - 1; ++size)
        EXPECT_FALSE(readRecovery(text.first(size))) << size;
}

TEST_F(Recovery, StandsBesideTheProject)
{
    RecoverySlot slot = free(m_project);
    EXPECT_FALSE(slot.hasFile());
    slot.write("one");
    EXPECT_EQ(slot.fileName(), m_folder.path(u"p.json.recovery.txt"_s));
    EXPECT_EQ(readFile(slot.fileName()), "one");
    slot.write("two");
    EXPECT_EQ(slot.read(), "two");
    slot.remove();
    EXPECT_FALSE(QFile::exists(m_folder.path(u"p.json.recovery.txt"_s)));
}

TEST_F(Recovery, WhatAWorkbenchLeftIsFound)
{
    free(m_project).write("left");
    RecoverySlots slots = RecoverySlot::slotsOf(m_project);
    ASSERT_EQ(slots.left.size(), 1u);
    EXPECT_EQ(slots.left[0].read(), "left");
    EXPECT_FALSE(slots.isOpenElsewhere);
    slots.own->write("mine");
    EXPECT_EQ(readFile(m_folder.path(u"p.json.recovery.txt"_s)), "left");
}

TEST_F(Recovery, AWorkbenchThatLivesKeepsItsOwn)
{
    RecoverySlot one = free(m_project);
    one.write("one");
    EXPECT_TRUE(RecoverySlot::slotsOf(m_project).left.empty());
    EXPECT_TRUE(RecoverySlot::slotsOf(m_project).isOpenElsewhere);
    RecoverySlot two = free(m_project);
    EXPECT_FALSE(two.hasFile());
    two.write("two");
    EXPECT_EQ(one.read(), "one");
    EXPECT_EQ(readFile(m_folder.path(u"p.json.recovery.txt"_s)), "one");
}

TEST_F(Recovery, AFolderThatIsGoneLeavesTheUsersOwn)
{
    const QString project = m_folder.path(u"gone/p.json"_s);
    RecoverySlot slot = free(project);
    slot.write("kept");
    EXPECT_TRUE(slot.fileName().startsWith(m_data.path({}))) << slot.fileName().toStdString();
    ASSERT_TRUE(QDir().mkdir(m_folder.path(u"gone"_s)));
    slot.write("later");
    EXPECT_EQ(slot.fileName(), project + u".recovery.txt"_s);
    EXPECT_EQ(QDir(m_data.path({})).entryList({u"*.txt"_s}, QDir::Files), QStringList());
}

TEST_F(Recovery, NoPlaceAtAllIsTold)
{
    qputenv("XDG_DATA_HOME", m_project.toUtf8()); // a file
    const auto error = raisedBy([&] { free(m_folder.path(u"gone/p.json"_s)).write("x"); });
    ASSERT_TRUE(error);
}

// Locks of one process keep each other out as those of two do; the folder of their own data
// makes two users of one.
TEST_F(Recovery, AnotherUsersWorkbenchKeepsItsOwn)
{
    RecoverySlot one = free(m_project);
    one.write("one");
    const ProjectFolder others;
    qputenv("XDG_DATA_HOME", others.path({}).toUtf8());
    RecoverySlots found = RecoverySlot::slotsOf(m_project);
    EXPECT_TRUE(found.isOpenElsewhere);
    EXPECT_TRUE(found.left.empty());
    found.own->write("two");
    EXPECT_EQ(found.own->fileName(), m_folder.path(u"p.json.recovery-2.txt"_s));
    EXPECT_EQ(one.read(), "one");
}

TEST_F(Recovery, ItsLockGoesWithTheWorkbench)
{
    const QString lock = m_folder.path(u".p.json.recovery.lock"_s);
    {
        const RecoverySlot slot = free(m_project);
        EXPECT_TRUE(QFile::exists(lock));
    }
    EXPECT_FALSE(QFile::exists(lock));
    EXPECT_EQ(QDir(m_folder.path({})).entryList(QDir::Files | QDir::Hidden),
              QStringList(u"p.json"_s));
}

TEST_F(Recovery, AProjectIsOneWhateverLinksLeadToIt)
{
    const ProjectFolder links;
    ASSERT_TRUE(QFile::link(m_project, links.path(u"other.json"_s)));
    RecoverySlot one = free(m_project);
    EXPECT_TRUE(RecoverySlot::slotsOf(links.path(u"other.json"_s)).isOpenElsewhere);
    free(links.path(u"other.json"_s)).write("two");
    EXPECT_TRUE(QFile::exists(m_folder.path(u"p.json.recovery-2.txt"_s)));
}

TEST_F(Recovery, ALockThatSomebodyRemovedIsTakenAnew)
{
    RecoverySlot one = free(m_project);
    one.write("one");
    ASSERT_TRUE(QFile::remove(m_folder.path(u".p.json.recovery.lock"_s)));
    one.write("one, later");
    EXPECT_TRUE(RecoverySlot::slotsOf(m_project).isOpenElsewhere);
    EXPECT_TRUE(RecoverySlot::slotsOf(m_project).left.empty());
}

TEST_F(Recovery, WhoTookTheLockMeanwhileKeepsTheFile)
{
    RecoverySlot one = free(m_project);
    one.write("one");
    ASSERT_TRUE(QFile::remove(m_folder.path(u".p.json.recovery.lock"_s)));
    const FileLock other(m_folder.path(u".p.json.recovery.lock"_s), std::chrono::milliseconds(0));
    ASSERT_TRUE(other.isHeld());
    m_folder.write(u"p.json.recovery.txt"_s, "two");
    one.write("one, later");
    EXPECT_EQ(readFile(m_folder.path(u"p.json.recovery.txt"_s)), "two");
    EXPECT_TRUE(one.fileName().startsWith(m_data.path({}))) << one.fileName().toStdString();
    one.remove();
    EXPECT_TRUE(QFile::exists(m_folder.path(u"p.json.recovery.txt"_s)));
}

TEST_F(Recovery, AFolderForReadersLeavesTheUsersOwn)
{
    const ProjectFolder closed;
    const QString project = closed.write(u"p.json"_s, "{}");
    ASSERT_TRUE(QFile::setPermissions(closed.path({}), QFile::ReadOwner | QFile::ExeOwner |
                                                           QFile::ReadOther | QFile::ExeOther));
    {
        const WithoutRights nobody(m_data.path({}));
        RecoverySlot one = free(project);
        one.write("kept");
        EXPECT_TRUE(one.fileName().startsWith(m_data.path({}))) << one.fileName().toStdString();
        EXPECT_TRUE(RecoverySlot::slotsOf(project).isOpenElsewhere);
        EXPECT_TRUE(RecoverySlot::slotsOf(project).left.empty());
    }
    ASSERT_TRUE(QFile::setPermissions(closed.path({}),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
}

TEST_F(Recovery, AVersionThatCannotBeKeptDoesNotStopSaving)
{
    const ProjectFolder folder;
    folder.write(u"p.prog"_s, "A");
    const QByteArray json =
        R"({"format": 1, "name": "P", "program": "p.prog", "inputs": [{"name": "I"}]})";
    const QString file = folder.write(u"p.json"_s, json);
    for (const QString &name : {u"p.json~"_s, u"p.prog~"_s})
        ASSERT_TRUE(QDir().mkdir(folder.path(name)));
    Project project(file);
    project.rename(dsInput, 0, u"J"_s);
    const Project::Saved saved = project.save({{1, u"B"_s}}, Project::Theirs::Kept);
    EXPECT_TRUE(saved.notKept.contains(u"p.prog~"_s)) << saved.notKept.toStdString();
    EXPECT_EQ(readFile(folder.path(u"p.prog"_s)), "B");
    EXPECT_EQ(readFile(file), QByteArray(json).replace("\"I\"", "\"J\""));
    EXPECT_TRUE(
        project.save({{1, u"B"_s}}, Project::Theirs::Kept).notKept.isEmpty()); // nothing to do
    EXPECT_TRUE(project.saveAt(folder.path(u"q.json"_s), {{1, u"C"_s}}).notKept.isEmpty());
    EXPECT_FALSE(project.saveAt(file, {{1, u"D"_s}}).notKept.isEmpty());
    EXPECT_EQ(Project(file).program(), u"D"_s);
}

TEST_F(Recovery, SavingKeepsTheVersionBefore)
{
    const ProjectFolder folder;
    folder.write(u"p.prog"_s, "A\tB\r\n");
    const QByteArray json =
        R"({"format": 1, "name": "P", "program": "p.prog", "inputs": [{"name": "I"}]})";
    const QString file = folder.write(u"p.json"_s, json);
    Project project(file);
    project.save({{1, project.program()}}, Project::Theirs::Kept);
    EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files).join(u' '), u"p.json p.prog"_s);
    project.rename(dsInput, 0, u"J"_s);
    project.save({{1, u"C\r\n"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(readFile(file + u"~"_s), json);
    EXPECT_EQ(readFile(folder.path(u"p.prog~"_s)), "A\tB\r\n");
    EXPECT_EQ(readFile(folder.path(u"p.prog"_s)), "C\r\n");
    project.save({{1, u"D\r\n"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(readFile(folder.path(u"p.prog~"_s)), "C\r\n");
    EXPECT_EQ(readFile(file + u"~"_s), json);
}

TEST_F(Recovery, AProjectCanBeSavedAtAnotherPlace)
{
    const ProjectFolder folder;
    const ProjectFolder other;
    ASSERT_TRUE(QDir().mkdir(folder.path(u"sub"_s)));
    folder.write(u"sub/p.prog"_s, "A\r\nb");
    const QString file = folder.write(
        u"p.json"_s,
        R"({"format": 1, "name": "P", "program": "sub/p.prog", "inputs": [{"name": "I"}]})");
    Project project(file);
    ASSERT_TRUE(QDir(folder.path({})).removeRecursively());
    project.rename(dsInput, 0, u"J"_s);
    project.saveAt(other.path(u"q.json"_s), {{1, u"A\r\nc"_s}});
    EXPECT_EQ(project.fileName(), other.path(u"q.json"_s));
    EXPECT_FALSE(project.hasChangedTables());
    const Project again(other.path(u"q.json"_s));
    EXPECT_EQ(again.program(), u"A\r\nc"_s);
    EXPECT_EQ(readFile(other.path(u"p.prog"_s)), "A\r\nc");
    EXPECT_EQ(again.rows(dsInput)[0].name, u"J"_s);
}

TEST_F(Recovery, AnotherProjectsProgramIsLeftAlone)
{
    const ProjectFolder folder;
    folder.write(u"p.prog"_s, "A");
    const QString file =
        folder.write(u"p.json"_s, R"({"format": 1, "name": "P", "program": "p.prog"})");
    Project project(file);
    project.saveAt(folder.path(u"two.json"_s), {{1, u"B"_s}});
    EXPECT_EQ(readFile(folder.path(u"p.prog"_s)), "A");
    EXPECT_EQ(Project(folder.path(u"two.json"_s)).program(), u"B"_s);
    EXPECT_EQ(readFile(folder.path(u"two.prog"_s)), "B");
    project.saveAt(file, {{1, u"C"_s}}); // this project is replaced, its program too
    EXPECT_EQ(Project(file).program(), u"C"_s);
}

TEST_F(Recovery, WhatFailsElsewhereLeavesTheProgramThere)
{
    const ProjectFolder folder;
    const ProjectFolder other;
    folder.write(u"p.prog"_s, "A");
    Project project(
        folder.write(u"p.json"_s, R"({"format": 1, "name": "P", "program": "p.prog"})"));
    ASSERT_TRUE(QDir().mkdir(other.path(u"q.json"_s)));
    EXPECT_TRUE(raisedBy([&] { project.saveAt(other.path(u"q.json"_s), {{1, u"B"_s}}); }));
    EXPECT_FALSE(QFile::exists(other.path(u"p.prog"_s)));
    EXPECT_EQ(project.fileName(), folder.path(u"p.json"_s));
}

TEST_F(Recovery, TablesOfOthersAreTakenOver)
{
    const ProjectFolder folder;
    folder.write(u"p.prog"_s, "A");
    const QByteArray json = R"({"format": 1, "name": "P", "program": "p.prog",
 "inputs": [{"name": "I"}], "variables": [{"name": "V"}]})";
    const QString file = folder.write(u"p.json"_s, json);
    Project project(file);
    writeFile(file, QByteArray(json).replace("\"I\"", "\"Theirs\""));
    writeFile(folder.path(u"p.prog"_s), "theirs");
    project.rename(dsVariable, 0, u"Mine"_s);
    EXPECT_TRUE(project.save({{1, u"A"_s}}, Project::Theirs::Kept).takesOver);
    EXPECT_EQ(project.rows(dsInput)[0].name, u"Theirs"_s);
    EXPECT_EQ(readFile(folder.path(u"p.prog"_s)), "theirs");
    project.rename(dsInput, 0, u"Again"_s);
    project.save({{1, u"A"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(readFile(file),
              QByteArray(json).replace("\"I\"", "\"Again\"").replace("\"V\"", "\"Mine\""));
}

TEST_F(Recovery, TheVersionBeforeIsSavedIntoTheProjectsFile)
{
    const ProjectFolder folder;
    folder.write(u"p.prog"_s, "A");
    const QByteArray json = R"({"format": 1, "name": "P", "program": "p.prog"})";
    const QString file = folder.write(u"p.json"_s, "{");
    folder.write(u"p.json~"_s, json);
    const auto project = Project::versionBefore(file);
    EXPECT_EQ(project->fileName(), file);
    EXPECT_TRUE(project->hasChangedTables());
    project->save({{1, u"A"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(readFile(file), json);
    EXPECT_EQ(readFile(file + u'~'), "{");
    EXPECT_FALSE(project->hasChangedTables());
}
