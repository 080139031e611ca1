#include "grid/rules/CellTexts.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(CellTexts, RowsAreLinesAndCellsHaveTabsBetween)
{
    const CellBlock cells{{u"a"_s, QString()}, {u"1.5"_s, u"°C"_s}};
    EXPECT_EQ(tabbedText(cells), u"a\t\n1.5\t°C\n"_s);
    EXPECT_EQ(cellsOfTabbedText(tabbedText(cells)), cells);
}

TEST(CellTexts, WhatWouldBeTornApartIsQuoted)
{
    const CellBlock cells{
        {u"two\nlines"_s, u"a\tb"_s, u"\"x\""_s, u"5\" pipe"_s, u"\r\n"_s, u"\"\""_s}};
    EXPECT_EQ(tabbedText(cells),
              u"\"two\nlines\"\t\"a\tb\"\t\"\"\"x\"\"\"\t5\" pipe\t\"\r\n\"\t\"\"\"\"\"\"\n"_s);
    EXPECT_EQ(cellsOfTabbedText(tabbedText(cells)), cells);
}

TEST(CellTexts, AnyLineEndEndsARow)
{
    const CellBlock cells{{u"a"_s}, {u"b"_s}};
    for (const QString &text : {u"a\nb"_s, u"a\nb\n"_s, u"a\r\nb\r\n"_s, u"a\rb"_s, u"a\rb\r"_s})
        EXPECT_EQ(cellsOfTabbedText(text), cells) << text.toStdString();
    EXPECT_EQ(cellsOfTabbedText(u"a\n\nb"_s), (CellBlock{{u"a"_s}, {QString()}, {u"b"_s}}));
    EXPECT_EQ(cellsOfTabbedText(u"\t"_s), (CellBlock{{QString(), QString()}}));
    EXPECT_TRUE(cellsOfTabbedText(QString()).isEmpty());
}

TEST(CellTexts, ALoneReturnInACellTearsNothingApart)
{
    const CellBlock cells{{u"a\rb"_s, u"c"_s}};
    EXPECT_EQ(tabbedText(cells), u"\"a\rb\"\tc\n"_s);
    EXPECT_EQ(cellsOfTabbedText(tabbedText(cells)), cells);
}

TEST(CellTexts, AQuotationMarkThatIsNotClosedIsALetter)
{
    EXPECT_EQ(cellsOfTabbedText(u"\"a\tb\n"_s), (CellBlock{{u"\"a"_s, u"b"_s}}));
    EXPECT_EQ(cellsOfTabbedText(u"\"a\"b\tc"_s), (CellBlock{{u"\"a\"b"_s, u"c"_s}}));
    EXPECT_EQ(cellsOfTabbedText(u"\""_s), (CellBlock{{u"\""_s}}));
    EXPECT_EQ(cellsOfTabbedText(u"\"a\"\"x\t\"c\""_s), (CellBlock{{u"\"a\"\"x"_s, u"c"_s}}));
    EXPECT_EQ(cellsOfTabbedText(u"\"a\nb\tc\n\"d\"e"_s),
              (CellBlock{{u"\"a"_s}, {u"b"_s, u"c"_s}, {u"\"d\"e"_s}}));
}

TEST(CellTexts, CommasAreThoseOfTheStandard)
{
    EXPECT_EQ(commaText({{u"a,b"_s, u"5\" pipe"_s}, {u"x\ny"_s, u" z"_s}}),
              u"\"a,b\",\"5\"\" pipe\"\r\n\"x\ny\", z\r\n"_s);
}

TEST(CellTexts, HeadsOfATableAreHeads)
{
    EXPECT_EQ(htmlTable({{u"A&B"_s}, {u"<1>"_s}}, 1),
              u"<table>\n<tr><th>A&amp;B</th></tr>\n<tr><td>&lt;1&gt;</td></tr>\n</table>\n"_s);
}

// Which else would be blanks there.
TEST(CellTexts, LinesOfACellAreLinesInATable)
{
    EXPECT_EQ(htmlTable({{u"a\nb\r\n<c>"_s}}, 0),
              u"<table>\n<tr><td>a<br>b<br>&lt;c&gt;</td></tr>\n</table>\n"_s);
}

TEST(CellTexts, ABlockFillsAPlaceThatItFitsSeveralTimes)
{
    const CellBlock block{{u"a"_s, u"b"_s}};
    EXPECT_EQ(fittedBlock(block, 1, 1), block);
    EXPECT_EQ(fittedBlock(block, 2, 2), (CellBlock{{u"a"_s, u"b"_s}, {u"a"_s, u"b"_s}}));
    EXPECT_EQ(fittedBlock(block, 1, 4), (CellBlock{{u"a"_s, u"b"_s, u"a"_s, u"b"_s}}));
    EXPECT_EQ(fittedBlock(block, 2, 3), block);
    EXPECT_EQ(fittedBlock({{u"x"_s}}, 2, 2), (CellBlock{{u"x"_s, u"x"_s}, {u"x"_s, u"x"_s}}));
    const CellBlock ragged{{u"a"_s, u"b"_s}, {u"c"_s}};
    EXPECT_EQ(fittedBlock(ragged, 2, 2), (CellBlock{{u"a"_s, u"b"_s}, {u"c"_s, QString()}}));
    EXPECT_EQ(fittedBlock({QStringList()}, 2, 2), CellBlock{QStringList()});
    EXPECT_EQ(fittedBlock(block, 0, 2), block);
    EXPECT_EQ(fittedBlock(block, 1, 0), block);
    EXPECT_TRUE(fittedBlock({}, 2, 2).isEmpty());
}
