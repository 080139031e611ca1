#include "grid/rules/ColumnLayoutText.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(ColumnLayoutText, IsAShortLine)
{
    EXPECT_EQ(columnLayoutText({{u"Label"_s, 1440}, {u"Hw Override"_s, 720, true}}),
              u"Label:1440;Hw Override:-720"_s);
    EXPECT_EQ(columnLayoutText({}), QString());
}

TEST(ColumnLayoutText, IsReadAsItWasWritten)
{
    const QList<ColumnPlace> columns{{u"#"_s, 300}, {u"a;b:c%"_s, 15, true}, {u"Größe"_s, 1}};
    EXPECT_EQ(columnsOfLayoutText(columnLayoutText(columns)), columns);
}

TEST(ColumnLayoutText, WhatIsNoColumnIsLeftOut)
{
    const QList<ColumnPlace> label{{u"Label"_s, 5}};
    for (const QString &text : {u"Label:5;x"_s, u":7;Label:5;"_s, u"a:b;Label:5;c:;d:0"_s,
                                u";;Label:5;e:99999999999999"_s, u"f:1000001;Label:5;g:-1000001"_s})
        EXPECT_EQ(columnsOfLayoutText(text), label) << text.toStdString();
    EXPECT_TRUE(columnsOfLayoutText({}).isEmpty());
}

TEST(ColumnLayoutText, ColumnsAreNoWiderThanTheyCanBe)
{
    const QList<ColumnPlace> widest{{u"a"_s, 1'000'000}, {u"b"_s, 1'000'000, true}};
    EXPECT_EQ(columnsOfLayoutText(columnLayoutText(widest)), widest);
}
