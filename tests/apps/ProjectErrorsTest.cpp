// What is wrong with a project is said with file, place and reason, and no
// project comes of it.

#include "ProjectFolder.h"
#include "project/Project.h"
#include "project/ProjectError.h"
#include "support/QtPrinters.h"

#include <ostream>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Fault
{
    qint32 number = 0;
    QString text; // with the folder left out
};

Fault load(const ProjectFolder &folder, const QString &name)
{
    try {
        const Project project(folder.path(name));
    } catch (const Error &error) {
        return {error.Number(), error.Description().remove(folder.path({}) + u'/')};
    }
    return {0, u"no error"_s};
}

Fault loadJson(const QByteArray &json)
{
    const ProjectFolder folder;
    folder.write(u"code.txt"_s, "X = 1");
    folder.write(u"p.json"_s, json);
    return load(folder, u"p.json"_s);
}

struct Case
{
    const char *member;
    const char *expected;
};

void PrintTo(const Case &faulty, std::ostream *out)
{
    *out << faulty.member;
}

class FaultyMember : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(FaultyMember, IsNamedWithItsPlace)
{
    const Fault fault =
        loadJson(QByteArray(R"({"format": 1, "name": "T", "program": "code.txt", )") +
                 GetParam().member + "}");
    EXPECT_EQ(fault.number, ProjectNotValid);
    EXPECT_EQ(fault.text, u"p.json: "_s + QString::fromUtf8(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Project, FaultyMember,
    testing::Values(
        Case{R"("inputz": [])", "inputz: is not known here"},
        Case{R"("inputs": {})", "inputs: an array is expected"},
        Case{R"("inputs": [7])", "inputs #1: an object is expected"},
        Case{R"("inputs": [{}])", "inputs #1, name: is missing"},
        Case{R"("inputs": [{"name": 7}])", "inputs #1, name: a text is expected"},
        Case{R"("inputs": [{"name": "A"}, {"name": ""}])",
             "inputs #2, name: a name is expected, without blanks around it and control "
             "characters"},
        Case{R"("inputs": [{"name": " A"}])",
             "inputs #1, name: a name is expected, without blanks around it and control "
             "characters"},
        Case{R"("inputs": [{"name": "A\tB"}])",
             "inputs #1, name: a name is expected, without blanks around it and control "
             "characters"},
        Case{R"("inputs": [{"name": "A", "colour": "red"}])",
             "inputs #1, colour: is not known here"},
        Case{R"("inputs": [{"name": "Temp1"}, {"name": "B"}, {"name": "TEMP1"}])",
             "inputs #3, name: \"TEMP1\" is the name of inputs #1 too"},
        Case{R"("networkOutputs": [{"name": "A"}, {"name": "a"}])",
             "networkOutputs #2, name: \"a\" is the name of networkOutputs #1 too"},
        Case{R"("inputs": [{"name": "A", "data": 1.5}])",
             "inputs #1, data: a whole number of 32 bits is expected"},
        Case{R"("inputs": [{"name": "A", "data": 2147483648}])",
             "inputs #1, data: a whole number of 32 bits is expected"},
        Case{R"("inputs": [{"name": "A", "data": "1"}])",
             "inputs #1, data: a whole number of 32 bits is expected"},
        Case{R"("controllers": [{"data": 1}])", "controllers #1, data: is not known here"},
        Case{R"("inputs": [{"name": "A", "value": true}])",
             "inputs #1, value: a number or a text is expected"},
        Case{R"("inputs": [{"name": "A", "units": 3}])", "inputs #1, units: a text is expected"},
        Case{R"("inputs": [{"name": "A", "commissioned": "Yes"}])",
             "inputs #1, commissioned: true or false is expected"},
        Case{R"("outputParameters": [{"pwmPeriod": "5"}])",
             "outputParameters #1, pwmPeriod: a number is expected"},
        Case{R"("controller": [])", "controller: an object is expected"},
        Case{R"("controller": {"sqrt": 1})", "controller, sqrt: true or false is expected"},
        Case{R"("controller": {"sqr": true})", "controller, sqr: is not known here"},
        Case{R"("indexedNames": [{"name": "T", "upper": 3}])",
             "indexedNames #1, lower: is missing"},
        Case{R"("indexedNames": [{"name": "T", "lower": 1, "upper": 100001}])",
             "indexedNames #1: has more than 100000 names"},
        Case{R"("indexedNames": [{"name": "T", "lower": -2147483648, "upper": 2147483647}])",
             "indexedNames #1: has more than 100000 names"},
        Case{R"("editor": 5)", "editor: an object is expected"},
        Case{R"("editor": {"backColour": "blue"})",
             "editor, backColour: \"blue\" is no colour (\"#rrggbb\" or a system colour)"}));

TEST(ProjectErrors, MissingFile)
{
    const ProjectFolder folder;
    const Fault fault = load(folder, u"none.json"_s);
    EXPECT_EQ(fault.number, FileNotReadable);
    EXPECT_TRUE(fault.text.startsWith(u"none.json: "_s)) << fault.text.toStdString();
}

TEST(ProjectErrors, BadJsonIsNamedWithLineAndColumn)
{
    const Fault fault = loadJson("{\n  \"format\": 1,\n  \"name\" \"T\"\n}");
    EXPECT_EQ(fault.number, ProjectNotValid);
    EXPECT_TRUE(fault.text.startsWith(u"p.json: line 3, column "_s)) << fault.text.toStdString();
    const QByteArray mark = "\xEF\xBB\xBF";
    EXPECT_TRUE(loadJson(mark + "x").text.startsWith(u"p.json: line 1, column 1: "_s));
    EXPECT_TRUE(loadJson("[\"\n" + mark + "x\\y").text.startsWith(u"p.json: line 2, column 4: "_s));
    EXPECT_TRUE(loadJson({}).text.startsWith(u"p.json: line 1, column 1: "_s));
    EXPECT_EQ(loadJson("[]").text, u"p.json: an object is expected"_s);
    EXPECT_EQ(loadJson("\xFF").number, ProjectNotValid);
}

TEST(ProjectErrors, AMemberThatStandsTwiceIsNamedWithLineAndColumn)
{
    const Fault atTheTop = loadJson("{ \"format\": 1,\n  \"name\": \"°\", \"name\": \"T\"}");
    EXPECT_EQ(atTheTop.number, ProjectNotValid);
    EXPECT_EQ(atTheTop.text, u"p.json: line 2, column 16: \"name\" stands there twice"_s);
    EXPECT_EQ(loadJson(R"({"inputs": [{"name": "A"}, {"name": "B", "name": "C"}]})").text,
              u"p.json: line 1, column 42: \"name\" stands there twice"_s);
    EXPECT_EQ(loadJson(R"({"inputs": [], "inputs": []})").text,
              u"p.json: line 1, column 16: \"inputs\" stands there twice"_s);
}

TEST(ProjectErrors, WhatEveryProjectNeeds)
{
    EXPECT_EQ(loadJson("{}").text, u"p.json: format: is missing"_s);
    EXPECT_EQ(loadJson(R"({"format": 0})").text,
              u"p.json: format: a form from 1 to 2 is expected"_s);
    EXPECT_EQ(loadJson(R"({"format": 3, "unknown": 1})").text,
              u"p.json: format: the form 3 is newer than the form 2 that can be read here; a newer "
              "version opens the file, which stays as it is"_s);
    EXPECT_EQ(loadJson(R"({"format": 1, "program": "code.txt"})").text,
              u"p.json: name: is missing"_s);
    EXPECT_EQ(loadJson(R"({"format": 1, "name": "T"})").text, u"p.json: program: is missing"_s);
}

TEST(ProjectErrors, TooManyRowsForATable)
{
    QByteArray timers = "{}";
    timers.append(QByteArray(",{}").repeated(32767));
    const QByteArray start = R"({"format": 1, "name": "T", "program": "code.txt", "timers": [)";
    EXPECT_EQ(loadJson(start + timers + "]}").text,
              u"p.json: timers: holds more than 32767 elements"_s);
    EXPECT_EQ(loadJson(start + timers.sliced(3) + "]}").number, 0);
}

TEST(ProjectErrors, MissingProgram)
{
    const Fault fault = loadJson(R"({"format": 1, "name": "T", "program": "other.txt"})");
    EXPECT_EQ(fault.number, FileNotReadable);
    EXPECT_TRUE(fault.text.startsWith(u"other.txt: "_s)) << fault.text.toStdString();
}

TEST(ProjectErrors, AProgramThatIsNotUtf8IsReadAsWindows1252)
{
    const ProjectFolder folder;
    folder.write(u"code.txt"_s, "A\nB \xFC\n");
    folder.write(u"p.json"_s, R"({"format": 1, "name": "T", "program": "code.txt"})");
    const Project project(folder.path(u"p.json"_s));
    EXPECT_EQ(project.program(), u"A\r\nB ü\r\n"_s);
}
