// Several programs in a project's file: what is read, and how little is changed.

#include "apps/ProjectFolder.h"
#include "project/Project.h"
#include "project/ProjectDocument.h"
#include "project/ProjectError.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray oneProgram =
    "{ \"format\" : 1,\n\t\"name\": \"P\",\n  \"program\" :\t\"a.prog\",\n"
    "  \"inputs\": [ {\"name\": \"I\"} ]\n}\n";

QList<ProgramEntry> entriesOf(const QByteArray &json)
{
    return readContents(JsonPlace::parse(json, u"p.json"_s)).programs;
}

QString faultOf(const QByteArray &json)
{
    try {
        entriesOf(json);
    } catch (const Error &error) {
        return error.Description();
    }
    return {};
}

} // namespace

TEST(ProgramEntries, AFileOfTheFirstFormHasOne)
{
    EXPECT_EQ(entriesOf(oneProgram), QList<ProgramEntry>({{u"a.prog"_s, u"a.prog"_s}}));
    EXPECT_EQ(withProgramEntries(oneProgram, u"p.json"_s, entriesOf(oneProgram)), oneProgram);
    QByteArray other = oneProgram;
    EXPECT_EQ(withProgramEntries(oneProgram, u"p.json"_s, {{u"b.prog"_s, u"b.prog"_s}}),
              other.replace("a.prog", "b.prog"));
}

TEST(ProgramEntries, SeveralMakeTheFileOneOfTheNewForm)
{
    const QList<ProgramEntry> two{{u"a.prog"_s, u"a.prog"_s}, {u"Heating \"2\""_s, u"h.prog"_s}};
    const QByteArray json = withProgramEntries(oneProgram, u"p.json"_s, two);
    EXPECT_EQ(json, "{ \"format\" : 2,\n\t\"name\": \"P\",\n  \"programs\": [\n"
                    "    { \"file\": \"a.prog\" },\n"
                    "    { \"name\": \"Heating \\\"2\\\"\", \"file\": \"h.prog\" }\n  ],\n"
                    "  \"inputs\": [ {\"name\": \"I\"} ]\n}\n");
    EXPECT_EQ(entriesOf(json), two);
    const QList<ProgramEntry> one{two.constLast()};
    EXPECT_EQ(entriesOf(withProgramEntries(json, u"p.json"_s, one)), one);
    EXPECT_EQ(withProgramEntries(json, u"p.json"_s, two), json);
}

TEST(ProgramEntries, AnEscapedMemberIsFoundToo)
{
    QByteArray json = oneProgram;
    json.replace("\"program\" ", "\"pro\\u0067ram\"");
    const QList<ProgramEntry> named{{u"Main"_s, u"a.prog"_s}};
    EXPECT_EQ(entriesOf(withProgramEntries(json, u"p.json"_s, named)), named);
}

TEST(ProgramEntries, WhatIsWrongIsSaid)
{
    const auto fault = [](const QByteArray &programs) {
        return faultOf(R"({"format": 2, "name": "P", "programs": )" + programs + "}");
    };
    EXPECT_EQ(fault("[]"), u"p.json: programs: a project has at least one program"_s);
    EXPECT_EQ(fault(R"([{"name": "A"}])"), u"p.json: programs #1, file: is missing"_s);
    EXPECT_EQ(fault(R"([{"file": "a", "b": 1}])"), u"p.json: programs #1, b: is not known here"_s);
    EXPECT_EQ(fault(R"([{"file": "a"}, {"file": "a", "name": "B"}])"),
              u"p.json: programs #2: another program has the file \"a\""_s);
    EXPECT_EQ(fault(R"([{"file": "a"}, {"file": "b", "name": "A"}])"),
              u"p.json: programs #2: another program has the name \"A\""_s);
    EXPECT_EQ(faultOf(R"({"format": 2, "name": "P", "program": "a"})"),
              u"p.json: program: is not known here"_s);
    EXPECT_EQ(faultOf(R"({"format": 1, "name": "P", "programs": []})"),
              u"p.json: programs: is not known here"_s);
}

class SeveralPrograms : public testing::Test
{
protected:
    SeveralPrograms()
    {
        m_folder.write(u"a.prog"_s, "A\t= 1\n");
        m_folder.write(u"p.json"_s, oneProgram);
    }
    QByteArray bytes(const QString &name) const { return readFile(m_folder.path(name)); }

    ProjectFolder m_folder;
};

TEST_F(SeveralPrograms, TwoNamesOfOneFileAreRefused)
{
    const auto fault = [this](const QByteArray &second) {
        m_folder.write(u"p.json"_s, R"({"format": 2, "name": "P", "programs": [
            { "file": "a.prog" }, { "name": "Other", "file": ")" +
                                        second + "\" }]}");
        try {
            readProject(m_folder.path(u"p.json"_s));
        } catch (const Error &error) {
            return error.Description();
        }
        return QString();
    };
    ASSERT_TRUE(QFile::link(m_folder.path(u"a.prog"_s), m_folder.path(u"link.prog"_s)));
    m_folder.write(u"b.prog"_s, "B = 1\n");
    EXPECT_EQ(fault("b.prog"), QString());
    EXPECT_TRUE(fault("./a.prog").contains(u"\"./a.prog\" and \"a.prog\" are one file"_s));
    EXPECT_TRUE(fault("link.prog").contains(u"\"link.prog\" and \"a.prog\" are one file"_s));
    EXPECT_TRUE(fault("p.json").contains(u"\"p.json\" and \"p.json\" are one file"_s));
}

TEST_F(SeveralPrograms, OneIsAddedSavedAndReadAgain)
{
    Project project(m_folder.path(u"p.json"_s));
    EXPECT_FALSE(project.hasChangedTables());
    m_folder.write(u"Heating.prog"_s, "not ours");
    const qint32 heating = project.makeProgram(u"Heating"_s);
    project.setPrograms({project.programs().constFirst(), {heating, u"Heating"_s}});
    EXPECT_TRUE(project.hasChangedTables());
    project.save({{1, project.program()}, {heating, u"B = 2\r\n"_s}}, Project::Theirs::Kept);
    EXPECT_FALSE(project.hasChangedTables());
    EXPECT_EQ(bytes(u"a.prog"_s), "A\t= 1\n"); // nobody touched it
    EXPECT_EQ(bytes(u"Heating.prog"_s), "not ours");
    EXPECT_EQ(bytes(u"Heating-2.prog"_s), "B = 2\n");
    EXPECT_FALSE(QFile::exists(m_folder.path(u"Heating-2.prog~"_s))); // there was none before

    const Project again(m_folder.path(u"p.json"_s));
    ASSERT_EQ(again.programs().size(), 2);
    EXPECT_EQ(again.programs().at(1).name, u"Heating"_s);
    EXPECT_EQ(again.program(again.programs().at(1).id), u"B = 2\r\n"_s);
    EXPECT_EQ(again.rows(dsInput).size(), 1);
}

TEST_F(SeveralPrograms, OneThatLeavesTheListKeepsItsFile)
{
    Project project(m_folder.path(u"p.json"_s));
    const ProjectProgram first = project.programs().constFirst();
    const ProjectProgram other{project.makeProgram(u"B"_s), u"B"_s};
    project.setPrograms({first, other});
    project.save({{1, u"A\r\n"_s}, {other.id, u"B\r\n"_s}}, Project::Theirs::Kept);
    project.setPrograms({other});
    project.save({{other.id, u"B\r\n"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(bytes(u"a.prog"_s), "A\n");
    EXPECT_EQ(Project(m_folder.path(u"p.json"_s)).program(), u"B\r\n"_s);
    project.setPrograms({first, other});
    project.save({{1, u"A\r\n"_s}, {other.id, u"B\r\n"_s}}, Project::Theirs::Kept);
    EXPECT_EQ(Project(m_folder.path(u"p.json"_s)).programs().size(), 2);
}

TEST_F(SeveralPrograms, AllGoToAnotherPlace)
{
    Project project(m_folder.path(u"p.json"_s));
    const qint32 other = project.makeProgram(u"B"_s);
    project.setPrograms({project.programs().constFirst(), {other, u"B"_s}});
    const ProgramTexts texts{{1, u"A\r\n"_s}, {other, u"B\r\n"_s}};
    project.save(texts, Project::Theirs::Kept);
    ASSERT_TRUE(QDir(m_folder.path({})).mkdir(u"sub"_s));
    m_folder.write(u"sub/B.prog"_s, "not ours");
    project.saveAt(m_folder.path(u"sub/q.json"_s), texts);
    EXPECT_EQ(bytes(u"sub/B.prog"_s), "not ours");
    EXPECT_EQ(bytes(u"sub/q.prog"_s), "B\n");
    const Project again(m_folder.path(u"sub/q.json"_s));
    EXPECT_EQ(again.program(1), u"A\r\n"_s);
    EXPECT_EQ(again.program(2), u"B\r\n"_s);
    EXPECT_EQ(again.programs().at(1).name, u"B"_s);
}

// Somebody else has added one while only a table was changed here.
TEST_F(SeveralPrograms, TheListOfSomebodyElseIsTakenOver)
{
    Project project(m_folder.path(u"p.json"_s));
    project.rename(dsInput, 0, u"J"_s);
    m_folder.write(u"b.prog"_s, "B\n");
    m_folder.write(u"p.json"_s,
                   withProgramEntries(oneProgram, u"p.json"_s,
                                      {{u"a.prog"_s, u"a.prog"_s}, {u"B"_s, u"b.prog"_s}}));
    const ProgramTexts texts{{1, project.program()}};
    EXPECT_TRUE(project.save(texts, Project::Theirs::Overwritten).takesOver);
    ASSERT_EQ(project.programs().size(), 2);
    EXPECT_EQ(project.program(2), u"B\r\n"_s);
    EXPECT_FALSE(project.hasChangedTables());
    const qint32 other = project.makeProgram(u"C"_s);
    project.setPrograms(project.programs() + ProgramList{{other, u"C"_s}});
    project.save({{1, project.program()}, {2, u"B\r\n"_s}, {other, u"C\r\n"_s}},
                 Project::Theirs::Kept);
    EXPECT_EQ(Project(m_folder.path(u"p.json"_s)).programs().size(), 3);
}

// Neither at the place of now nor at the other one is there a file then.
TEST_F(SeveralPrograms, OneThatWasNeverSavedGoesToAnotherPlace)
{
    Project project(m_folder.path(u"p.json"_s));
    const qint32 other = project.makeProgram(u"B"_s);
    project.setPrograms({project.programs().constFirst(), {other, u"B"_s}});
    ASSERT_TRUE(QDir(m_folder.path({})).mkdir(u"sub"_s));
    project.saveAt(m_folder.path(u"sub/q.json"_s), {{1, u"A\r\n"_s}, {other, u"B\r\n"_s}});
    EXPECT_EQ(bytes(u"sub/a.prog"_s), "A\n");
    EXPECT_EQ(bytes(u"sub/B.prog"_s), "B\n");
}

TEST_F(SeveralPrograms, NoneHasTheNameThatTheProjectIsGiven)
{
    Project project(m_folder.path(u"p.json"_s));
    ASSERT_TRUE(QDir(m_folder.path({})).mkdir(u"sub"_s));
    project.saveAt(m_folder.path(u"sub/a.prog"_s), {{1, u"A\r\n"_s}});
    EXPECT_EQ(bytes(u"sub/a-2.prog"_s), "A\n");
    EXPECT_EQ(Project(m_folder.path(u"sub/a.prog"_s)).program(), u"A\r\n"_s);
}

// In folders of their own they differ by case alone, which not every system tells apart.
TEST_F(SeveralPrograms, NoneTakesTheFileOfAnotherAtAnotherPlace)
{
    for (const QString &folder : {u"one"_s, u"two"_s, u"sub"_s})
        ASSERT_TRUE(QDir(m_folder.path({})).mkdir(folder));
    m_folder.write(u"one/Main.prog"_s, "A\n");
    m_folder.write(u"two/main.prog"_s, "B\n");
    m_folder.write(u"p.json"_s, R"({"format": 2, "name": "P",
        "programs": [{"name": "A", "file": "one/Main.prog"},
                     {"name": "B", "file": "two/main.prog"}]})");
    Project project(m_folder.path(u"p.json"_s));
    project.saveAt(m_folder.path(u"sub/q.json"_s), {{1, u"A\r\n"_s}, {2, u"B\r\n"_s}});
    const Project again(m_folder.path(u"sub/q.json"_s));
    EXPECT_EQ(again.program(1), u"A\r\n"_s);
    EXPECT_EQ(again.program(2), u"B\r\n"_s);
}

// It comes back there under a name of its own, not as the other one of its name.
TEST_F(SeveralPrograms, OneThatWasRemovedTakesNobodysFileAtAnotherPlace)
{
    Project project(m_folder.path(u"p.json"_s));
    const ProjectProgram first = project.programs().constFirst();
    const ProjectProgram other{project.makeProgram(u"B"_s), u"B"_s};
    project.setPrograms({first, other});
    const ProgramTexts texts{{1, u"A\r\n"_s}, {other.id, u"B\r\n"_s}};
    project.save(texts, Project::Theirs::Kept);
    project.setPrograms({first});
    ASSERT_TRUE(QDir(m_folder.path({})).mkdir(u"sub"_s));
    m_folder.write(u"sub/B.prog"_s, "not ours");
    project.saveAt(m_folder.path(u"sub/q.orvt.json"_s), texts);
    project.setPrograms({first, other});
    project.save(texts, Project::Theirs::Kept);
    EXPECT_EQ(bytes(u"sub/B.prog"_s), "not ours");
    EXPECT_EQ(bytes(u"sub/q.prog"_s), "B\n");
    EXPECT_EQ(Project(m_folder.path(u"sub/q.orvt.json"_s)).program(2), u"B\r\n"_s);
    EXPECT_EQ(bytes(u"B.prog"_s), "B\n");
}

TEST_F(SeveralPrograms, OneThatHasATextDoesNotGoUnseen)
{
    ProgramTexts typed;
    ProjectDocument document({[&](qint32 id) { return typed.value(id); },
                              [&](qint32 id) { return typed.value(id).size(); }});
    document.setProject(std::make_unique<Project>(m_folder.path(u"p.json"_s)));
    Project &project = *document.project();
    typed[1] = project.program();
    const qint32 night = project.makeProgram(u"Night"_s);
    document.carryOut(project.programs() + ProgramList{{night, u"Night"_s}});
    document.noteStepShown();
    constexpr auto back = ProjectDocument::Way::Back;
    ASSERT_TRUE(document.next(back, 1));
    EXPECT_EQ(document.obstacle(*document.next(back, 1), back), 0);
    typed[night] = u"REM n"_s;
    EXPECT_EQ(document.obstacle(*document.next(back, 1), back), night);
    EXPECT_FALSE(document.next(back, 0));
}

TEST_F(SeveralPrograms, TheNameOfAnotherPlaceStaysWithUndo)
{
    ProgramTexts typed;
    ProjectDocument document({[&](qint32 id) { return typed.value(id); },
                              [&](qint32 id) { return typed.value(id).size(); }});
    document.setProject(std::make_unique<Project>(m_folder.path(u"p.json"_s)));
    Project &project = *document.project();
    document.carryOut(
        RowChanges{{dsInput, 0, project.rows(dsInput).at(0), project.renamed(dsInput, 0, u"J"_s)}});
    document.saveAt(m_folder.path(u"copy.json"_s), Project::Encoding::ItsOwn);
    EXPECT_EQ(project.programs().at(0).name, u"copy.prog"_s);
    document.go(ProjectDocument::Way::Back);
    EXPECT_EQ(project.rows(dsInput).at(0).name, u"I"_s);
    EXPECT_EQ(project.programs().at(0).name, u"copy.prog"_s);
}

TEST_F(SeveralPrograms, OnlyTheOneThatNeedsItBecomesUtf8)
{
    m_folder.write(u"a.prog"_s, "REM \xFC\n"); // Windows-1252
    m_folder.write(u"b.prog"_s, "REM \xFC\n");
    m_folder.write(u"p.json"_s, R"({"format": 2, "name": "P",
        "programs": [{"file": "a.prog"}, {"file": "b.prog"}]})");
    Project project(m_folder.path(u"p.json"_s));
    project.save({{1, project.program(1)}, {2, u"REM \u2603\r\n"_s}}, Project::Theirs::Kept,
                 Project::Encoding::Utf8);
    EXPECT_EQ(bytes(u"a.prog"_s), "REM \xFC\n");
    EXPECT_EQ(bytes(u"b.prog"_s), "REM \xE2\x98\x83\n");
}

TEST_F(SeveralPrograms, NamesAreCheckedAgainstTheOthers)
{
    Project project(m_folder.path(u"p.json"_s));
    EXPECT_FALSE(project.programNameFault(0, u"A.PROG"_s).isEmpty());
    EXPECT_TRUE(project.programNameFault(1, u"A.PROG"_s).isEmpty());
    EXPECT_FALSE(project.programNameFault(1, u" x"_s).isEmpty());
    EXPECT_FALSE(project.programNameFault(0, {}).isEmpty());
}
