// A new project is made of a form, with an empty program, and overwrites nothing.

#include "project/NewProject.h"
#include "apps/ProjectFolder.h"
#include "project/Project.h"
#include "project/ProjectFileName.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <QtCore/QDir>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray form = "{\n  \"format\": 1,\n  \"name\": \"\",\n  \"program\": \"\"\n}\n";

} // namespace

TEST(NewProject, CanBeOpened)
{
    const ProjectFolder folder;
    const QString file = folder.path(u"a & b.json"_s);
    makeProject(file, u"a & \"b\" %2"_s, form);
    const Project project(file);
    EXPECT_EQ(project.name(), u"a & \"b\" %2"_s);
    EXPECT_EQ(project.programFile(), folder.path(u"a & b.prog"_s));
    EXPECT_EQ(project.program(), QString());
    EXPECT_TRUE(readFile(file).startsWith("{\n  \"format\": 1,\n  \"name\": "));
}

TEST(NewProject, OverwritesNothing)
{
    for (const QString &there : {u"p.json"_s, u"p.prog"_s}) {
        const ProjectFolder folder;
        folder.write(there, "mine");
        EXPECT_TRUE(newProjectFault(folder.path(u"p.json"_s)).contains(there));
        EXPECT_TRUE(raisedBy([&] { makeProject(folder.path(u"p.json"_s), u"P"_s, form); }));
        EXPECT_EQ(readFile(folder.path(there)), "mine");
        EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files), QStringList(there));
    }
}

TEST(NewProject, LeavesNoHalfWhereItFails)
{
    const ProjectFolder folder;
    EXPECT_TRUE(raisedBy([&] { makeProject(folder.path(u"p.json"_s), u" blank"_s, form); }));
    EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files), QStringList());
    folder.write(u"file"_s, "mine");
    EXPECT_TRUE(raisedBy([&] { makeProject(folder.path(u"file/p.json"_s), u"P"_s, form); }));
    EXPECT_EQ(QDir(folder.path({})).entryList(QDir::Files), QStringList(u"file"_s));
}

TEST(NewProject, MakesItsFolder)
{
    const ProjectFolder folder;
    const QString file = folder.path(u"plants/north/p.json"_s);
    EXPECT_EQ(newProjectFault(file), QString());
    makeProject(file, u"P"_s, form);
    EXPECT_EQ(Project(file).name(), u"P"_s);
}

TEST(NewProject, HasANameThatFilesCanHave)
{
    EXPECT_EQ(projectFileName(u"Air handling unit"_s), u"Air handling unit.orvt.json"_s);
    EXPECT_EQ(projectFileName(u"a/b:c*d"_s), u"a-b-c-d.orvt.json"_s);
    EXPECT_EQ(projectFileName(u"..hidden. "_s), u"hidden.orvt.json"_s);
    EXPECT_EQ(projectFileName(u"..."_s), u"project.orvt.json"_s);
}

TEST(NewProject, HasAProgramOfItsName)
{
    EXPECT_EQ(projectBaseName(u"/x/a.b.orvt.json"_s), u"a.b"_s);
    EXPECT_EQ(projectBaseName(u"/x/A.ORVT.JSON"_s), u"A"_s);
    EXPECT_EQ(projectBaseName(u"/x/a.b.json"_s), u"a.b"_s);
    EXPECT_EQ(projectBaseName(u"a"_s), u"a"_s);
    const ProjectFolder folder;
    makeProject(folder.path(projectFileName(u"North"_s)), u"North"_s, form);
    EXPECT_EQ(Project(folder.path(u"North.orvt.json"_s)).programFile(),
              folder.path(u"North.prog"_s));
}
