#include "pointtable/rules/ColumnLayouts.h"
#include "base/ThreadState.h"
#include "shared/texts/TextTable.h"
#include "support/PseudoTexts.h"
#include "support/QtPrinters.h"
#include <ORVTListview/LibraryTexts.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

struct Expected
{
    LwType type;
    int columns;
    int rows;
    const char16_t *line;
};

constexpr Expected tables[] = {
    {dsVariable, 6, 50, u"#|Label|Mode|Value|Units|Description"},
    {dsConst, 5, 50, u"#|Label|Value|Units|Description"},
    {dsInput, 7, 12, u"#|Label|Mode|Value|Units|Description|Commissioned"},
    {dsOutput, 7, 12, u"#|Label|Mode|Value|Units|Description|Commissioned"},
    {dsController, 14, 10,
     u"#|Mode|Value|Input|Setpoint|Proportional Band|Integral Gain|Integral Time|Derivative "
     u"Gain|Derivative Time|Dead Band|Bias|Action|Divider"},
    {dsLog, 8, 24, u"#|Data|Differential|Time|Mode|Format|Unit|Description"},
    {dsTimer, 4, 15, u"#|Data|Type|Value"},
    {dsOs, 9, 4,
     u"#|Mode|Value|Target Temperature|Target Setpoint|Outdoor Temperature|Schedule|Max Starting "
     u"Time|Description"},
    {dsNvi, 6, 12, u"#|Label|Value|Format Name|Persistent|Description"},
    {dsNvo, 6, 18, u"#|Name|Data Source|Value|Format Name|Description"},
    {dsInputParam, 10, 12,
     u"#|Type|Scale Min/Rising Edge|Scale Max/Falling Edge|Input Min|Input Max|Correction|Filter|"
     u"Override|Units"},
    {dsOutputParam, 3, 12, u"#|Type|PWM Period"},
};

} // namespace

TEST(ColumnLayouts, EveryTypeHasItsColumns)
{
    for (const Expected &table : tables) {
        const QStringList keys = columnKeys(table.type, false);
        EXPECT_EQ(keys.join(u'|'), QString::fromUtf16(table.line)) << table.type;
        EXPECT_EQ(keys.size(), table.columns) << table.type;
    }
}

TEST(ColumnLayouts, EveryTypeHasItsNumberOfRows)
{
    for (const Expected &table : tables)
        EXPECT_EQ(defaultNumberItems(table.type), table.rows) << table.type;
}

TEST(ColumnLayouts, OnlyOutputsHaveHardwareOverrides)
{
    for (const Expected &table : tables) {
        QStringList expected = columnKeys(table.type, false);
        if (table.type == dsOutput)
            expected << u"Hw Override Mode"_s << u"Hw Override Value"_s;
        EXPECT_EQ(columnKeys(table.type, true), expected) << table.type;
    }
    EXPECT_EQ(columnKeys(dsOutput, true).size(), 9);
}

TEST(ColumnLayouts, TheCodeAndWhatIsNoTypeHaveNone)
{
    for (const int type : {int{dsCode}, -1, 13, 1000, -2147483647}) {
        EXPECT_TRUE(columnKeys(type, true).isEmpty()) << type;
        EXPECT_EQ(defaultNumberItems(type), 0) << type;
    }
}

TEST(ColumnLayouts, PublishedPositionsFitTheColumns)
{
    const auto key = [](LwType type, int position) { return columnKeys(type, false).at(position); };
    EXPECT_EQ(key(dsInput, Sep_Input), u"Value"_s);
    EXPECT_EQ(key(dsOutput, Sep_Output), u"Value"_s);
    EXPECT_EQ(key(dsVariable, Sep_Variable), u"Value"_s);
    EXPECT_EQ(key(dsConst, Sep_Constant), u"Value"_s);
    EXPECT_EQ(key(dsNvi, Sep_Input_Nv), u"Value"_s);
    EXPECT_EQ(key(dsNvo, Sep_Output_Nv), u"Data Source"_s);
    EXPECT_EQ(key(dsInputParam, Sep_Input_Param), u"Override"_s);
    EXPECT_EQ(key(dsOutputParam, Sep_Output_Param), u"Type"_s);
    EXPECT_EQ(key(dsController, Sep_Controler), u"Bias"_s);
    EXPECT_EQ(key(dsLog, Sep_Log), u"Format"_s);
    EXPECT_EQ(key(dsTimer, Sep_Timer), u"Type"_s);
    EXPECT_EQ(key(dsOs, Sep_OptimumStart), u"Max Starting Time"_s);
}

TEST(ColumnLayouts, HeadersAreLocalisedButForTheNumberColumn)
{
    const ThreadState::Fresh fresh;
    PseudoTexts pseudo;
    setTextProvider(&pseudo);
    for (const Expected &table : tables) {
        const QStringList keys = columnKeys(table.type, true);
        EXPECT_EQ(columnText(keys.first()), u"#"_s);
        for (const QString &key : keys.mid(1))
            EXPECT_EQ(columnText(key), PseudoTexts::inBrackets(key));
    }
}

namespace {

// Translates what should stay.
class BarTexts final : public TextProvider
{
public:
    QDateTime ChangeTime() override { return {}; }
    TextCollection GetTexts(const QString &) override
    {
        return {{u"#"_s, u"No."_s}, {u"LABEL"_s, u"one|two"_s}};
    }
};

} // namespace

TEST(ColumnLayouts, TheNumberSignIsNeverTranslated)
{
    const ThreadState::Fresh fresh;
    BarTexts texts;
    setTextProvider(&texts);
    EXPECT_EQ(columnText(u"#"_s), u"#"_s);
    EXPECT_EQ(columnText(u"Label"_s), u"one|two"_s); // one column's, bar and all
}

TEST(ColumnLayouts, RowsAreNumberedFromTheTypesNameWithoutBlanks)
{
    EXPECT_EQ(rowKey(u"Inputs"_s, 1), u"Inputs1"_s);
    EXPECT_EQ(rowKey(u"Inputs"_s, 12), u"Inputs12"_s);
    EXPECT_EQ(rowKey(u"Optimum Starts"_s, 2), u"OptimumStarts2"_s);
    EXPECT_EQ(rowKey(u"Network Var Inputs"_s, 32767), u"NetworkVarInputs32767"_s);
}

TEST(ColumnLayouts, NumbersHaveTwoDigitsAtLeast)
{
    EXPECT_EQ(rowText(1), u"01"_s);
    EXPECT_EQ(rowText(9), u"09"_s);
    EXPECT_EQ(rowText(10), u"10"_s);
    EXPECT_EQ(rowText(99), u"99"_s);
    EXPECT_EQ(rowText(100), u"100"_s);
    EXPECT_EQ(rowText(32767), u"32767"_s);
}
