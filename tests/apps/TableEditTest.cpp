// Tables of a project's file are changed, and what stays keeps its layout.

#include "project/TableEdit.h"
#include "apps/ProjectFolder.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/TextFile.h"
#include "support/QtPrinters.h"
#include "support/RandomSeed.h"

#include <random>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QByteArray head = R"({"format": 1, "name": "P", "program": "p")";

QList<ProjectRow> rowsOf(const QByteArray &json, LwType type)
{
    return readContents(JsonPlace::parse(json, u"p.json"_s)).rows.value(type);
}

ProjectRow input(const QString &name, qint32 data, const QVariant &value = {})
{
    return {name, data, {name, {}, value, {}, {}, {}}, {}};
}

QByteArray edited(const QByteArray &table, const std::function<void(QList<ProjectRow> &)> &change)
{
    const QByteArray json = head + table;
    const QList<ProjectRow> before = rowsOf(json, dsInput);
    QList<ProjectRow> now = before;
    change(now);
    const QByteArray result = withRows(json, u"p.json"_s, dsInput, before, now);
    EXPECT_EQ(rowsOf(result, dsInput), now) << result.toStdString();
    EXPECT_TRUE(result.startsWith(head)) << result.toStdString();
    return result.sliced(head.size());
}

const QByteArray three = R"(,
  "inputs": [
    { "name": "A",   "value": 1.50 },
    {"name":"B", "data": 9} ,

    { "name": "C" }
  ], "logs": []
})";

} // namespace

TEST(TableEdit, ChangesCellsInTheirPlace)
{
    EXPECT_EQ(edited(three, [](auto &rows) { rows[0].setCell(2, 3.5); }),
              QByteArray(three).replace("1.50", "3.5"));
    EXPECT_EQ(edited(three, [](auto &rows) { rows[1].setCell(4, u"x \"y\""_s); }),
              QByteArray(three).replace("9}", "9, \"description\": \"x \\\"y\\\"\"}"));
    EXPECT_EQ(edited(three, [](auto &rows) { rows[2].setCell(5, true); }),
              QByteArray(three).replace("\"C\" }", "\"C\", \"commissioned\": true }"));
    EXPECT_EQ(edited(three, [](auto &rows) { rows[0].setCell(2, QVariant()); }),
              QByteArray(three).replace(R"("A",   "value": 1.50)", R"("A")"));
}

TEST(TableEdit, AddsRows)
{
    EXPECT_EQ(edited(three, [](auto &rows) { rows.append(input(u"D"_s, 4, 7.0)); }),
              QByteArray(three).replace("\"C\" }", "\"C\" },\n\n    "
                                                   R"({ "name": "D", "value": 7 })"));
    EXPECT_EQ(edited("}", [](auto &rows) { rows.append(input(u"D"_s, 1)); }),
              QByteArray(",\n  \"inputs\": [\n    { \"name\": \"D\" }\n  ]}"));
    EXPECT_EQ(edited(R"(, "inputs": []})", [](auto &rows) { rows.append(input(u"D"_s, 1)); }),
              QByteArray(", \"inputs\": [\n    { \"name\": \"D\" }\n  ]}"));
}

// Where rows stand beside each other, the new first one begins its line as the former did.
TEST(TableEdit, AddsARowBeforeTheFirst)
{
    const QByteArray two = R"(, "inputs": [
    {"name": "A", "data": 1}, {"name": "B", "data": 2}
  ]})";
    EXPECT_EQ(edited(two, [](auto &rows) { rows.prepend(input(u"D"_s, 3)); }),
              QByteArray(two).replace("[", "[\n    { \"name\": \"D\", \"data\": 3 },"));
}

TEST(TableEdit, RemovesRows)
{
    EXPECT_EQ(edited(three, [](auto &rows) { rows.removeAt(2); }),
              QByteArray(three).replace(" ,\n\n    { \"name\": \"C\" }", ""));
    EXPECT_EQ(edited(three, [](auto &rows) { rows.clear(); }),
              QByteArray(",\n  \"inputs\": [], \"logs\": []\n}"));
}

TEST(TableEdit, ReadingsAreNotSaved)
{
    const ProjectFolder folder;
    folder.write(u"p"_s, "X");
    const QString file = folder.write(u"p.json"_s, head + three);
    Project project(file);
    project.setReading(dsInput, 0, 2, 99.0);
    EXPECT_FALSE(project.hasChangedTables());
    EXPECT_EQ(project.rows(dsInput)[0].cells[2], QVariant(99.0));
    project.rename(dsInput, 0, u"Z"_s);
    project.saveTables();
    EXPECT_EQ(readFile(file), QByteArray(head + three).replace("\"A\"", "\"Z\""));
    EXPECT_EQ(project.rows(dsInput)[0].cells[2], QVariant(99.0));
}

TEST(TableEdit, ChangesGoThereAndBack)
{
    const ProjectFolder folder;
    folder.write(u"p"_s, "X");
    const QString file = folder.write(u"p.json"_s, head + three);
    Project project(file);
    const ProjectTables before = project.tables();
    const RowChanges changes{{dsInput, 0, project.rows(dsInput)[0], {}},
                             {dsInput, 2, {}, input(u"New"_s, 3)},
                             {dsLog, 0, {}, ProjectRow{{}, 0, QVariantList(7), {}}}};
    project.apply(changes);
    EXPECT_EQ(project.points(dsInput)->Count(), 3);
    EXPECT_EQ(project.points(dsInput)->Item(3)->Name, u"New"_s);
    EXPECT_TRUE(project.hasChangedTables());
    project.saveTables();
    EXPECT_EQ(Project(file).tables(), project.tables());
    project.apply(reversed(changes));
    EXPECT_EQ(project.tables(), before);
    project.saveTables();
    EXPECT_EQ(Project(file).tables(), before);
}

TEST(TableEdit, RandomChangesAreReadAsTheyWereMade)
{
    std::mt19937 random(randomSeed());
    const auto below = [&random](qsizetype n) {
        return static_cast<qsizetype>(random() % static_cast<unsigned>(n));
    };
    QByteArray json = head + three;
    for (int step = 0; step < 400; ++step) {
        const QList<ProjectRow> before = rowsOf(json, dsInput);
        QList<ProjectRow> now = before;
        for (qsizetype change = below(4); change >= 0; --change) {
            const qsizetype at = now.isEmpty() ? 0 : below(now.size());
            if (now.isEmpty() || below(3) == 0)
                now.insert(at, input(u"N%1"_s.arg(random()), qint32(below(9))));
            else if (below(2) == 0)
                now.removeAt(at);
            else
                now[at].setCell(2 + below(3), below(2) ? QVariant(u"t%1"_s.arg(step)) : QVariant());
        }
        json = withRows(json, u"p.json"_s, dsInput, before, now);
        ASSERT_EQ(rowsOf(json, dsInput), now) << json.toStdString();
        ASSERT_TRUE(json.startsWith(head));
    }
}

TEST(TableEdit, AValueThatTheFileGivesStays)
{
    const ProjectFolder folder;
    folder.write(u"p"_s, "X");
    const QByteArray json = head + R"(, "inputs": [{"name": "A"}, {"name": "B", "data": 1}, )"
                                   R"({"name": "C", "data": 3}, {"name": "D"}]})";
    Project project(folder.write(u"p.json"_s, json));
    const RowChanges change{{dsInput, 0, project.rows(dsInput)[0], {}}};
    project.apply(change);
    QList<qint32> data;
    for (const ProjectRow &row : project.rows(dsInput))
        data.append(row.data);
    EXPECT_EQ(data, QList<qint32>({1, 3, 3}));
    project.apply(reversed(change));
    EXPECT_FALSE(project.hasChangedTables());
    EXPECT_EQ(project.tableSaving().into(project.json(), Project::Theirs::Overwritten), json);
}
