#include "shared/points/DisplayNames.h"
#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include <ORVTListview/Types.h>

#include <QtCore/QMetaEnum>
#include <QtCore/QMetaProperty>

#include <gtest/gtest.h>

#include <map>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

template <typename Enum>
std::map<QString, int> published()
{
    const QMetaEnum meta = QMetaEnum::fromType<Enum>();
    std::map<QString, int> values;
    for (int i = 0; i < meta.keyCount(); ++i)
        values[QString::fromLatin1(meta.key(i))] = meta.value(i);
    return values;
}

template <typename Record>
QStringList fieldsOf()
{
    QStringList names;
    const QMetaObject &meta = Record::staticMetaObject;
    for (int i = 0; i < meta.propertyCount(); ++i)
        names << QString::fromLatin1(meta.property(i).name());
    return names;
}

} // namespace

TEST(Types, PointTypesKeepTheirValues)
{
    const std::map<QString, int> expected{
        {u"dsCode"_s, 0},         {u"dsVariable"_s, 1}, {u"dsConst"_s, 2},
        {u"dsInput"_s, 3},        {u"dsOutput"_s, 4},   {u"dsController"_s, 5},
        {u"dsLog"_s, 6},          {u"dsTimer"_s, 7},    {u"dsOs"_s, 8},
        {u"dsNvi"_s, 9},          {u"dsNvo"_s, 10},     {u"dsInputParam"_s, 11},
        {u"dsOutputParam"_s, 12},
    };
    EXPECT_EQ(published<LwType>(), expected);
    static_assert(sizeof(LwType) == 4);
}

TEST(Types, SeparatorsKeepTheirValuesDuplicatesIncluded)
{
    const std::map<QString, int> expected{
        {u"Sep_Input"_s, 3},       {u"Sep_Output"_s, 3},       {u"Sep_Constant"_s, 2},
        {u"Sep_Variable"_s, 3},    {u"Sep_Input_Nv"_s, 2},     {u"Sep_Output_Nv"_s, 2},
        {u"Sep_Input_Param"_s, 8}, {u"Sep_Output_Param"_s, 1}, {u"Sep_Controler"_s, 11},
        {u"Sep_Log"_s, 5},         {u"Sep_Timer"_s, 2},        {u"Sep_OptimumStart"_s, 7},
    };
    EXPECT_EQ(published<LWNB>(), expected);
    static_assert(sizeof(LWNB) == 4);
}

TEST(Types, CancellingAndEndingADragAreTheSame)
{
    const std::map<QString, int> expected{
        {u"dcCancel"_s, 2}, {u"dcBeginDrag"_s, 1}, {u"dcEndDrag"_s, 2}};
    EXPECT_EQ(published<ActionIndex>(), expected);
    EXPECT_EQ(dcCancel, dcEndDrag);
    static_assert(sizeof(ActionIndex) == 4);
}

TEST(Types, DisplayNamesAreExact)
{
    const QStringList expected{u"Code"_s,
                               u"Variables"_s,
                               u"Constants"_s,
                               u"Inputs"_s,
                               u"Outputs"_s,
                               u"Controllers"_s,
                               u"Logs"_s,
                               u"Timers"_s,
                               u"Optimum Starts"_s,
                               u"Network Var Inputs"_s,
                               u"Network Var Outputs"_s,
                               u"Input Parameters"_s,
                               u"Output Parameters"_s};
    for (qint32 type = 0; type <= 12; ++type)
        EXPECT_EQ(displayName(type), expected.at(type));
    EXPECT_EQ(displayName(-1), QString());
    EXPECT_EQ(displayName(13), QString());
}

TEST(Types, RecordsKeepTheOrderOfTheirFields)
{
    EXPECT_EQ(fieldsOf<RichTextSettings>(),
              QStringList({u"BackColor"_s, u"FontName"_s, u"FontSize"_s, u"FontStyle"_s,
                           u"VariableColor"_s, u"ConstantColor"_s, u"InputColor"_s,
                           u"OutputColor"_s, u"ReservedWordColor"_s, u"CommentColor"_s,
                           u"nviFPAColor"_s, u"nvoFPAColor"_s}));
    EXPECT_EQ(fieldsOf<Pages>(), QStringList({u"Name"_s, u"Index"_s, u"Key"_s}));
    static_assert(sizeof(RichTextSettings::FontSize) == 2);
    static_assert(sizeof(RichTextSettings::BackColor) == 4);
}

TEST(Types, TheEditorsSettingsAreEqualInAllFieldsOnly)
{
    using Settings = RichTextSettings;
    expectEveryFieldCounts(
        Settings(), [](Settings &other) { other.BackColor = 1; },
        [](Settings &other) { other.FontName = u"Mono"_s; },
        [](Settings &other) { other.FontSize = 1; },
        [](Settings &other) { other.FontStyle = u"b1"_s; },
        [](Settings &other) { other.VariableColor = 1; },
        [](Settings &other) { other.ConstantColor = 1; },
        [](Settings &other) { other.InputColor = 1; },
        [](Settings &other) { other.OutputColor = 1; },
        [](Settings &other) { other.ReservedWordColor = 1; },
        [](Settings &other) { other.CommentColor = 1; },
        [](Settings &other) { other.nviFPAColor = 1; },
        [](Settings &other) { other.nvoFPAColor = 1; });
}

TEST(Types, APageIsEqualInAllFieldsOnly)
{
    expectEveryFieldCounts(
        Pages(), [](Pages &other) { other.Name = u"Code"_s; },
        [](Pages &other) { other.Index.append(dsCode); },
        [](Pages &other) { other.Key.append(u"Code"_s); });
}
