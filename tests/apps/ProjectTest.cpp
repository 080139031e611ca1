#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/TextFile.h"

#include "ProjectFolder.h"
#include "project/ProjectError.h"
#include "support/QtPrinters.h"
#include "support/Raised.h"

#include <QtCore/QDir>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Table
{
    LwType type;
    QString member;
    QString header; // without the row number's column
};

// The headers that the tables show.
const QList<Table> tables = {
    {dsVariable, u"variables"_s, u"Label|Mode|Value|Units|Description"_s},
    {dsConst, u"constants"_s, u"Label|Value|Units|Description"_s},
    {dsInput, u"inputs"_s, u"Label|Mode|Value|Units|Description|Commissioned"_s},
    {dsOutput, u"outputs"_s,
     u"Label|Mode|Value|Units|Description|Commissioned|Hw Override Mode|Hw Override Value"_s},
    {dsController, u"controllers"_s,
     u"Mode|Value|Input|Setpoint|Proportional Band|Integral Gain|Integral Time|Derivative Gain|"
     "Derivative Time|Dead Band|Bias|Action|Divider"_s},
    {dsLog, u"logs"_s, u"Data|Differential|Time|Mode|Format|Unit|Description"_s},
    {dsTimer, u"timers"_s, u"Data|Type|Value"_s},
    {dsOs, u"optimumStarts"_s,
     u"Mode|Value|Target Temperature|Target Setpoint|Outdoor Temperature|Schedule|"
     "Max Starting Time|Description"_s},
    {dsNvi, u"networkInputs"_s, u"Label|Value|Format Name|Persistent|Description"_s},
    {dsNvo, u"networkOutputs"_s, u"Name|Data Source|Value|Format Name|Description"_s},
    {dsInputParam, u"inputParameters"_s,
     u"Type|Scale Min/Rising Edge|Scale Max/Falling Edge|Input Min|Input Max|Correction|Filter|"
     "Override|Units"_s},
    {dsOutputParam, u"outputParameters"_s, u"Type|PWM Period"_s},
};

QString header(LwType type)
{
    QStringList keys;
    for (const ProjectColumn &column : projectColumns(type))
        keys.append(column.key);
    return keys.join(u'|');
}

// A cell of each kind and what a table shows of it.
QByteArray cellJson(CellKind kind)
{
    switch (kind) {
    case CellKind::Name:
        return R"("Point1")";
    case CellKind::Text:
        return R"("some text")";
    case CellKind::Number:
    case CellKind::Value:
        return "-12.5";
    case CellKind::YesNo:
        return "true";
    }
    return {};
}

QString cellShown(CellKind kind)
{
    switch (kind) {
    case CellKind::Name:
        return u"Point1"_s;
    case CellKind::Text:
        return u"some text"_s;
    case CellKind::Number:
    case CellKind::Value:
        return u"-12.5"_s;
    case CellKind::YesNo:
        return u"Yes"_s;
    }
    return {};
}

QString writeProject(const ProjectFolder &folder, const QByteArray &members,
                     const QByteArray &program = {})
{
    folder.write(u"code.txt"_s, program);
    return folder.write(u"p.json"_s, R"({"format": 1, "name": "Test", "program": "code.txt")" +
                                         (members.isEmpty() ? members : ", " + members) + "}");
}

} // namespace

TEST(ProjectColumns, AreThoseOfTheTables)
{
    QList<LwType> types;
    for (const Table &table : tables) {
        EXPECT_EQ(header(table.type), table.header);
        EXPECT_EQ(projectMember(table.type), table.member);
        types.append(table.type);
    }
    EXPECT_EQ(projectTypes(), types);
}

TEST(ProjectColumns, AreNoneForTheCodeAndForNoType)
{
    for (const int type : {-1, 0, 13}) {
        EXPECT_TRUE(projectColumns(static_cast<LwType>(type)).isEmpty());
        EXPECT_TRUE(projectMember(static_cast<LwType>(type)).isEmpty());
    }
}

TEST(CellText, IsFreeOfTheLocale)
{
    EXPECT_EQ(cellText({}), QString());
    EXPECT_EQ(cellText(u"On"_s), u"On"_s);
    EXPECT_EQ(cellText(21.5), u"21.5"_s);
    EXPECT_EQ(cellText(0.1), u"0.1"_s);
    EXPECT_EQ(cellText(1234567.0), u"1234567"_s);
    EXPECT_EQ(cellText(-3.0), u"-3"_s);
    EXPECT_EQ(cellText(true), u"Yes"_s);
    EXPECT_EQ(cellText(false), u"No"_s);
}

TEST(Project, OfTheLeastIsEmptyButWhole)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, {}));
    EXPECT_EQ(project.name(), u"Test"_s);
    EXPECT_EQ(project.controller(), ControllerInfo());
    EXPECT_EQ(project.program(), QString());
    EXPECT_EQ(project.indexedNames()->Count(), 0);
    for (const Table &table : tables)
        EXPECT_TRUE(project.rows(table.type).isEmpty());
}

TEST(Project, HandsOutTheFiveCollections)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"(
        "variables": [{"name": "V1", "data": -7}, {"name": "V2"}],
        "constants": [{"name": "C1"}], "inputs": [{"name": "I1"}],
        "outputs": [{"name": "O1"}], "networkInputs": [{"name": "N1", "data": 2147483647}],
        "networkOutputs": [{"name": "X1"}])"));
    ASSERT_TRUE(project.points(dsVariable));
    EXPECT_EQ(project.points(dsVariable)->Item(1), (Point{u"V1"_s, -7}));
    EXPECT_EQ(project.points(dsVariable)->Item(2), (Point{u"V2"_s, 2})); // its row number
    EXPECT_TRUE(project.points(dsConst)->Find(u"C1"_s));
    EXPECT_TRUE(project.points(dsInput)->Find(u"I1"_s));
    EXPECT_TRUE(project.points(dsOutput)->Find(u"O1"_s));
    EXPECT_EQ(project.points(dsNvi)->Item(1), (Point{u"N1"_s, 2147483647}));
    for (const int type : {-1, 0, 5, 6, 7, 8, 10, 11, 12, 13})
        EXPECT_FALSE(project.points(static_cast<LwType>(type))) << type;
}

TEST(Project, GivesEveryCellOfEveryTable)
{
    for (const Table &table : tables) {
        QByteArrayList members;
        QStringList expected;
        for (const ProjectColumn &column : projectColumns(table.type)) {
            members.append('"' + column.member.toUtf8() + "\": " + cellJson(column.kind));
            expected.append(cellShown(column.kind));
        }
        const ProjectFolder folder;
        const Project project(writeProject(folder, '"' + table.member.toUtf8() + "\": [{" +
                                                       members.join(", ") + "}]"));
        ASSERT_EQ(project.rows(table.type).size(), 1) << table.member.toStdString();
        QStringList shown;
        for (const QVariant &cell : project.rows(table.type).constFirst().cells)
            shown.append(cellText(cell));
        EXPECT_EQ(shown, expected) << table.member.toStdString();
    }
}

TEST(Project, TakesAValueAsNumberOrText)
{
    const ProjectFolder folder;
    const Project project(writeProject(
        folder, R"("constants": [{"name": "A", "value": "On"}, {"name": "B", "value": 1e3}])"));
    EXPECT_EQ(cellText(project.rows(dsConst).at(0).cells.at(1)), u"On"_s);
    EXPECT_EQ(cellText(project.rows(dsConst).at(1).cells.at(1)), u"1000"_s);
}

TEST(Project, LetsKindsShareAName)
{
    const ProjectFolder folder;
    Project project(writeProject(
        folder, R"("constants": [{"name": "Limit1"}], "variables": [{"name": "LIMIT1"}])"));
    EXPECT_EQ(project.points(dsConst)->Item(1)->Name, u"Limit1"_s);
    EXPECT_EQ(project.points(dsVariable)->Item(1)->Name, u"LIMIT1"_s);
}

TEST(Project, ReadsTheFamiliesOfIndexedNames)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"("indexedNames": [
        {"name": "Tmr", "format": "00", "lower": 1, "upper": 15},
        {"name": "Down", "lower": 2147483647, "upper": -2147483648},
        {"name": "Most", "lower": -1, "upper": 99998}])"));
    ASSERT_EQ(project.indexedNames()->Count(), 3);
    EXPECT_EQ(project.indexedNames()->Item(1)->Name(), u"Tmr"_s);
    EXPECT_EQ(project.indexedNames()->Item(1)->NumberFormat(), u"00"_s);
    EXPECT_EQ(project.indexedNames()->Item(1)->LowerBound(), 1);
    EXPECT_EQ(project.indexedNames()->Item(1)->UpperBound(), 15);
    EXPECT_EQ(project.indexedNames()->Item(2)->NumberFormat(), QString());
    EXPECT_EQ(project.indexedNames()->Item(2)->UpperBound(), -2147483647 - 1);
}

TEST(Project, ReadsControllerAndEditor)
{
    const ProjectFolder folder;
    const Project project(writeProject(folder, R"(
        "controller": {"model": "M", "address": "A", "location": "L", "sqrt": true, "hoa": true},
        "editor": {"fontSize": 14})"));
    EXPECT_EQ(project.controller(), (ControllerInfo{u"M"_s, u"A"_s, u"L"_s, true, true}));
    EXPECT_EQ(project.editor().FontSize, 14);
}

TEST(Project, FindsTheProgramBesideItself)
{
    const ProjectFolder folder;
    ASSERT_TRUE(QDir().mkdir(folder.path(u"sub"_s)));
    folder.write(u"sub/code.txt"_s, "\xEF\xBB\xBFREM \xC3\xA9\nX = 1\r\n");
    const Project project(
        folder.write(u"p.json"_s, R"({"format": 1, "name": "T", "program": "sub/code.txt"})"));
    EXPECT_EQ(project.program(), u"REM \u00e9\r\nX = 1\r\n"_s);
    EXPECT_EQ(project.programFile(), folder.path(u"sub/code.txt"_s));
    EXPECT_EQ(project.fileName(), folder.path(u"p.json"_s));
}

TEST(Project, KeepsItsCollectionsInPlace)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"("inputs": [{"name": "I1"}])"));
    PointList *inputs = project.points(dsInput);
    inputs->Add(u"I2"_s, 5);
    EXPECT_EQ(project.points(dsInput), inputs);
    EXPECT_EQ(project.points(dsInput)->Count(), 2);
}

TEST(Project, SavesItsProgramInTheFormOfItsFile)
{
    const ProjectFolder folder;
    const QByteArray mark = "\xEF\xBB\xBF";
    for (const QByteArray &lineEnd : {QByteArray("\n"), QByteArray("\r\n"), QByteArray("\r")}) {
        Project project(writeProject(folder, {}, mark + "A" + lineEnd + "B"));
        project.saveProgram(u"X = 1\r\n\r\nREM é"_s);
        EXPECT_EQ(readFile(project.programFile()),
                  mark + "X = 1" + lineEnd + lineEnd + "REM \xC3\xA9");
        EXPECT_EQ(project.program(), u"X = 1\r\n\r\nREM é"_s);
    }
}

TEST(Project, KeepsItsProgramWhenItCannotBeSaved)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, {}, "A"));
    const auto half = raisedBy([&] { project.saveProgram(u"\xD83D"_s); });
    ASSERT_TRUE(half);
    EXPECT_EQ(half->Number(), TextNotUtf8);
    EXPECT_EQ(readFile(project.programFile()), "A");

    ASSERT_TRUE(QFile::remove(project.programFile()));
    ASSERT_TRUE(QDir().mkdir(project.programFile()));
    const auto folderInTheWay = raisedBy([&] { project.saveProgram(u"B"_s); });
    ASSERT_TRUE(folderInTheWay);
    EXPECT_EQ(folderInTheWay->Number(), FileNotWritable);
    EXPECT_EQ(project.program(), u"A"_s);
}

TEST(Project, NoticesThatItsProgramWasChangedOutside)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, {}, "A\nB"));
    EXPECT_FALSE(project.isProgramChangedOutside());
    project.saveProgram(u"C"_s);
    EXPECT_FALSE(project.isProgramChangedOutside());
    folder.write(u"code.txt"_s, "D");
    EXPECT_TRUE(project.isProgramChangedOutside());
    folder.write(u"code.txt"_s, "\xFF");
    EXPECT_TRUE(project.isProgramChangedOutside());
    ASSERT_TRUE(QFile::remove(project.programFile()));
    EXPECT_FALSE(project.isProgramChangedOutside());
}

TEST(Project, RenamesAPointHereAndInItsFile)
{
    const ProjectFolder folder;
    Project project(
        writeProject(folder, R"("inputs": [{"name": "I1"},  {"name": "I2", "data": 7}])"));
    const PointList *inputs = project.points(dsInput);
    project.rename(dsInput, 1, u"Größe"_s);
    EXPECT_EQ(inputs->Item(2)->Name, u"Größe"_s);
    EXPECT_EQ(inputs->Item(2)->Data, 7);
    EXPECT_EQ(project.rows(dsInput).at(1).cells.at(0), QVariant(u"Größe"_s));
    EXPECT_TRUE(project.hasChangedTables());
    project.rename(dsInput, 1, u"Another"_s);

    const QByteArray before = readFile(project.fileName());
    project.saveTables();
    EXPECT_FALSE(project.hasChangedTables());
    EXPECT_EQ(readFile(project.fileName()), QByteArray(before).replace("\"I2\"", "\"Another\""));
    EXPECT_EQ(Project(project.fileName()).rows(dsInput).at(1).name, u"Another"_s);
}

TEST(Project, SavesNamesBehindAByteOrderMark)
{
    const ProjectFolder folder;
    const QString file = writeProject(folder, R"("inputs": [{"name": "I1"}])");
    const QByteArray marked = "\xEF\xBB\xBF" + readFile(file);
    folder.write(u"p.json"_s, marked);
    Project project(file);
    project.rename(dsInput, 0, u"First"_s);
    project.saveTables();
    EXPECT_EQ(readFile(file), QByteArray(marked).replace("\"I1\"", "\"First\""));
    EXPECT_EQ(Project(file).rows(dsInput).at(0).name, u"First"_s);
}

TEST(Project, DoesNotOverwriteTablesUnasked)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"("inputs": [{"name": "I1"}])"));
    project.rename(dsInput, 0, u"I9"_s);
    EXPECT_FALSE(project.isChangedOutside());
    writeProject(folder, R"("inputs": [{"name": "I1"}, {"name": "I9"}], "logs": [{"data": "x"}])");
    EXPECT_TRUE(project.isChangedOutside());
    const QByteArray theirs = readFile(project.fileName());
    const auto error = raisedBy([&] { project.saveTables(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), FileNotWritable);
    EXPECT_EQ(readFile(project.fileName()), theirs);
    EXPECT_TRUE(project.hasChangedTables());

    project.saveTables(Project::Theirs::Overwritten);
    const Project saved(project.fileName());
    EXPECT_EQ(saved.rows(dsInput), project.rows(dsInput));
    EXPECT_EQ(saved.rows(dsLog).size(), 1); // nobody changed it here
}

TEST(Project, RefusesNamesThatCannotBeUsed)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"("inputs": [{"name": "I1"}, {"name": "I2"}],
                                            "outputs": [{"name": "O1"}],
                                            "networkOutputs": [{"name": "N1"}, {"name": "N2"}],
                                            "indexedNames": [{"name": "Tmp", "lower": 1, "upper": 3}],
                                            "timers": [{"data": "x"}])"));
    const auto numberOf = [&](LwType type, qsizetype row, const QString &name) {
        const auto error = raisedBy([&] { project.rename(type, row, name); });
        return error ? error->Number() : 0;
    };
    for (const QString &name : {QString(), u" "_s, u" a"_s, u"a "_s, u"a\tb"_s, u"i2"_s})
        EXPECT_EQ(numberOf(dsInput, 0, name), qint32{NameNotUsable}) << name.toStdString();
    for (const QString &name : {u"IF"_s, u"and"_s, u"hour"_s, u"Average"_s, u"sqrt"_s, u"REM"_s,
                                u"="_s, u"12"_s, u"-1.5"_s, u"Return Temp"_s, u"Return\u00a0Temp"_s,
                                u"a(b"_s, u"a,b"_s, u"a\\b"_s, u"{a"_s, u"o1"_s, u"tmp2"_s})
        EXPECT_EQ(numberOf(dsInput, 0, name), qint32{NameNotUsable}) << name.toStdString();
    EXPECT_EQ(numberOf(dsInput, 2, u"x"_s), qint32{NameNotUsable});
    EXPECT_EQ(numberOf(dsTimer, 0, u"x"_s), qint32{NameNotUsable});
    EXPECT_FALSE(project.hasChangedTables());
    EXPECT_EQ(numberOf(dsInput, 0, u"i1"_s), 0); // another letter case of its own
    EXPECT_EQ(numberOf(dsInput, 0, u"Maß"_s), 0);
    EXPECT_EQ(numberOf(dsInput, 1, u"MASS"_s), qint32{NameNotUsable});
    EXPECT_EQ(project.points(dsInput)->Count(), 2);
    EXPECT_EQ(numberOf(dsInput, 0, u"Tmp4"_s), 0); // of no family
    EXPECT_EQ(numberOf(dsInput, 0, u"AHU-1_x=1"_s), 0);
    // What is no word of the program has names of its own.
    EXPECT_EQ(numberOf(dsNvo, 0, u"Return Temp"_s), 0);
    EXPECT_EQ(numberOf(dsNvo, 0, u"o1"_s), 0);
    EXPECT_EQ(numberOf(dsNvo, 1, u"O1"_s), qint32{NameNotUsable});
}

TEST(Project, DoesNotWriteNamesIntoAFileThatIsAnotherOne)
{
    const ProjectFolder folder;
    Project project(writeProject(folder, R"("inputs": [{"name": "I1"}])"));
    project.rename(dsInput, 0, u"I9"_s);
    writeProject(folder, R"("inputs": [{"name": "Another"}])");
    const QByteArray theirs = readFile(project.fileName());
    const auto error = raisedBy([&] { project.saveTables(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), FileNotWritable);
    EXPECT_EQ(readFile(project.fileName()), theirs);
    EXPECT_TRUE(project.hasChangedTables());
}
