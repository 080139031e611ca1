// Rows of texts become rows of a table.

#include "project/importing/PointImport.h"

#include "apps/ProjectFolder.h"
#include "grid/rules/CellTexts.h"
#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/importing/SeparatedText.h"
#include "support/QtPrinters.h"

#include <memory>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using enum ImportedRow::Fate;

class PointImport : public testing::Test
{
protected:
    PointImport()
    {
        m_folder.write(u"p.prog"_s, "");
        m_folder.write(u"p.json"_s, R"({"format": 1, "name": "P", "program": "p.prog",
            "inputs": [{"name": "Temp", "value": 20.5, "units": "°C", "commissioned": true},
                       {"name": "Fan, old", "value": "On", "description": "say \"no\""}],
            "variables": [{"name": "Mode"}],
            "timers": [{"data": "a", "value": 1}, {"data": "b", "value": 2}]})");
        m_project = std::make_unique<Project>(m_folder.path(u"p.json"_s));
    }

    QList<ImportedRow> imported(LwType type, const QString &text)
    {
        const QList<QStringList> cells = separatedCells(text, guessedSeparator(text));
        m_columns = columnsByNames(type, cells.constFirst(), {});
        return importedRows(*m_project, cells.sliced(1), m_columns, {u"Ja"_s, u"Nein"_s});
    }

    void carryOut(LwType type, const QList<ImportedRow> &rows)
    {
        m_project->apply(importChanges(*m_project, type, rows, QList<bool>(rows.size(), true)));
    }

    QVariant cell(LwType type, qsizetype row, qsizetype column) const
    {
        return m_project->rows(type).at(row).cells.at(column);
    }

    ProjectFolder m_folder;
    std::unique_ptr<Project> m_project;
    ImportColumns m_columns;
};

} // namespace

TEST_F(PointImport, ColumnsAreFoundByAnyOfTheirNames)
{
    const ImportColumns columns =
        columnsByNames(dsInput, {u"wert"_s, u" LABEL "_s, u"units"_s, u"#"_s, u"Other"_s},
                       {u"Bezeichnung"_s, u"Modus"_s, u"Wert"_s});
    EXPECT_EQ(columns.sources, (QList<qsizetype>{1, -1, 0, 2, -1, -1}));
    EXPECT_EQ(columns.number, 3);
}

TEST_F(PointImport, WhatIsThereIsChangedAndWhatIsNewIsAdded)
{
    const QList<ImportedRow> rows =
        imported(dsInput, u"Label,Value,Commissioned\nTEMP,21,nein\nNew,Off,\nTemp2,5,yes\n"_s);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0].fate, Changed);
    EXPECT_EQ(rows[0].row, 0);
    EXPECT_EQ(rows[0].changed, (QList<qsizetype>{2, 5}));
    EXPECT_EQ(rows[1].fate, Added);
    carryOut(dsInput, rows);
    ASSERT_EQ(m_project->rows(dsInput).size(), 4);
    EXPECT_EQ(m_project->rows(dsInput)[0].name, u"Temp"_s); // another case is no renaming
    EXPECT_EQ(cell(dsInput, 0, 2), QVariant(21.0));
    EXPECT_EQ(cell(dsInput, 0, 3), QVariant(u"°C"_s)); // was not in the text
    EXPECT_EQ(cell(dsInput, 0, 5), QVariant(false));
    EXPECT_EQ(cell(dsInput, 2, 0), QVariant(u"New"_s));
    EXPECT_EQ(cell(dsInput, 2, 2), QVariant(u"Off"_s));
    EXPECT_EQ(m_project->rows(dsInput)[3].data, 4);
}

TEST_F(PointImport, WhatIsWrongIsTold)
{
    const QList<ImportedRow> rows =
        imported(dsInput, u"name,commissioned\nIF,\nMode,\nTemp,perhaps\nX,\nx,\n,\n"_s);
    ASSERT_EQ(rows.size(), 6);
    EXPECT_TRUE(rows[0].fault.contains(u"IF"_s)) << rows[0].fault.toStdString();
    EXPECT_EQ(rows[1].fate, Faulty); // a variable has the name
    EXPECT_EQ(rows[2].fault, u"\"perhaps\" is neither yes nor no"_s);
    EXPECT_EQ(rows[3].fate, Added);
    EXPECT_EQ(rows[4].fault, u"\"x\" comes twice"_s);
    EXPECT_EQ(rows[5].fate, Faulty);
    const QList<ImportedRow> numbers = imported(dsInputParam, u"#,inputMin\n,abc\n"_s);
    EXPECT_EQ(numbers[0].fault, u"\"abc\" is not a number"_s);
    carryOut(dsInput, rows);
    EXPECT_EQ(m_project->rows(dsInput).size(), 3); // X alone
}

TEST_F(PointImport, RowsWithoutNamesGoByTheirNumbers)
{
    const QList<ImportedRow> rows =
        imported(dsTimer, u"#;data;value\n2;b;2,5\n2;b;3\nx;c;1\n9;new;\n"_s);
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0].fate, Changed);
    EXPECT_EQ(rows[1].fault, u"\"2\" comes twice"_s);
    EXPECT_EQ(rows[2].fault, u"\"x\" is not the number of a row"_s);
    EXPECT_EQ(rows[3].fate, Added);
    carryOut(dsTimer, rows);
    EXPECT_EQ(cell(dsTimer, 1, 2), QVariant(2.5));
    EXPECT_EQ(cell(dsTimer, 2, 0), QVariant(u"new"_s));
}

TEST_F(PointImport, WhatWasExportedChangesNothing)
{
    m_project->setReading(dsInput, 0, 2, 20.7); // shown, and exported
    for (const LwType type : projectTypes()) {
        CellBlock cells{{u"#"_s}};
        for (const ProjectColumn &column : projectColumns(type))
            cells.first().append(column.key);
        for (qsizetype row = 0; row < m_project->rows(type).size(); ++row) {
            QStringList texts{QString::number(row + 1)};
            for (const QVariant &each : m_project->rows(type)[row].cells)
                texts.append(cellText(each));
            cells.append(texts);
        }
        for (const ImportedRow &row : imported(type, commaText(cells)))
            EXPECT_EQ(row.fate, Same) << row.fault.toStdString();
    }
    EXPECT_FALSE(m_project->hasChangedTables());
}

TEST_F(PointImport, AnEmptyCellEmptiesAndAMissingOneToo)
{
    const QList<ImportedRow> rows = imported(dsInput, u"name,units,value\nTemp\n"_s);
    EXPECT_EQ(rows[0].changed, (QList<qsizetype>{2, 3}));
    carryOut(dsInput, rows);
    EXPECT_FALSE(cell(dsInput, 0, 2).isValid());
}

TEST_F(PointImport, WhatHasNoTickStays)
{
    const QList<ImportedRow> rows = imported(dsInput, u"name,value\nTemp,1\nNew1,2\nNew2,3\n"_s);
    const RowChanges changes = importChanges(*m_project, dsInput, rows, {false, false, true});
    ASSERT_EQ(changes.size(), 1);
    EXPECT_EQ(changes[0].after->name, u"New2"_s);
    EXPECT_EQ(changes[0].row, 2);
}
