#include "project/analysis/ProgramListing.h"

#include "AnalysisWords.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

QList<ListedStatement> listed(const QStringList &lines)
{
    const AnalysisWords words;
    return listStatements(
        static_cast<qint32>(lines.size()), [&](qint32 line) { return lines[line]; }, words.words());
}

const QStringList program{u"REM begin"_s,
                          u"if temp1>3 "_s,
                          u"  fan1 = LIMIT(temp1,3,4)"_s,
                          u"ELSE CLEAR nettemp"_s,
                          u"\tIF Temp1"_s,
                          u"\tendif"_s,
                          u"ENDIF"_s,
                          QString(),
                          u"end"_s};

QString nameOf(StatementKind kind)
{
    return kind == StatementKind::Assignment ? u"Sets \"it\""_s : u"Other"_s;
}

} // namespace

TEST(ProgramListing, HasEveryStatementWithItsLine)
{
    const QList<ListedStatement> expected = {
        {2, StatementKind::If, 0, u"IF Temp1 > 3"_s},
        {3, StatementKind::Assignment, 1, u"Fan1 = LIMIT ( Temp1 , 3 , 4 )"_s},
        {4, StatementKind::Else, 0, u"ELSE"_s},
        {4, StatementKind::Clear, 1, u"CLEAR NetTemp"_s},
        {5, StatementKind::If, 1, u"IF Temp1"_s},
        {6, StatementKind::EndIf, 1, u"ENDIF"_s},
        {7, StatementKind::EndIf, 0, u"ENDIF"_s},
        {9, StatementKind::End, 0, u"END"_s}};
    EXPECT_EQ(listed(program), expected);
}

TEST(ProgramListing, IsATextWithLineNumbersOfOneWidth)
{
    EXPECT_EQ(
        listingText(listed(program)),
        u"2  IF Temp1 > 3\r\n3      Fan1 = LIMIT ( Temp1 , 3 , 4 )\r\n4  ELSE\r\n"
        "4      CLEAR NetTemp\r\n5      IF Temp1\r\n6      ENDIF\r\n7  ENDIF\r\n9  END\r\n"_s);
    const QStringList late = QStringList(9, QString()) + program;
    EXPECT_TRUE(
        listingText(listed(QStringList{u"END"_s} + late)).startsWith(u" 1  END\r\n12  IF"_s));
    EXPECT_EQ(listingText({}), QString());
}

TEST(ProgramListing, IsAFileOfValuesBetweenCommas)
{
    EXPECT_EQ(listingCsv(listed({u"END"_s, u"Fan1 = LIMIT ( Temp1 , 3 , 4 )"_s}),
                         {u"Line"_s, u"Kind"_s, u"Statement"_s}, nameOf),
              u"Line,Kind,Statement\r\n1,Other,END\r\n"
              "2,\"Sets \"\"it\"\"\",\"Fan1 = LIMIT ( Temp1 , 3 , 4 )\"\r\n"_s);
}
