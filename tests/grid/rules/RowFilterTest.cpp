#include "grid/rules/RowFilter.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QList<QStringList> points{{u"Fan1"_s, u"21.50"_s, u"On"_s},
                                {u"Fan2"_s, u"7"_s, u" "_s},
                                {u"Temp"_s, u""_s, u"on"_s},
                                {u"21"_s, u"21.5 °C"_s, u"Off"_s}};

// The rows that pass what was typed into the fields of these columns.
QList<int> passed(const QList<std::pair<int, QString>> &typed)
{
    QList<CellFilter> filters;
    for (const auto &[column, text] : typed)
        filters.append(typedFilter(text, column));
    return filteredRows(
        static_cast<int>(points.size()), {0, 1, 2}, filters,
        [](int row, int column) -> const QString & { return points.at(row).at(column); });
}

constexpr int any = CellFilter::anyColumn;

} // namespace

TEST(RowFilter, WithoutATextAllRowsPass)
{
    EXPECT_EQ(passed({}), (QList<int>{0, 1, 2, 3}));
    EXPECT_EQ(passed({{any, u""_s}, {1, u"  "_s}}), (QList<int>{0, 1, 2, 3}));
}

TEST(RowFilter, APartOfAnyCellIsEnough)
{
    EXPECT_EQ(passed({{any, u"21"_s}}), (QList<int>{0, 3}));
    EXPECT_EQ(passed({{any, u" FAN "_s}}), (QList<int>{0, 1}));
    EXPECT_EQ(passed({{any, u"<>"_s}}), QList<int>());
}

TEST(RowFilter, ColumnsHaveFiltersOfTheirOwn)
{
    EXPECT_EQ(passed({{0, u"21"_s}}), QList<int>{3});
    EXPECT_EQ(passed({{1, u"21"_s}, {2, u"on"_s}}), QList<int>{0});
    EXPECT_EQ(passed({{any, u"fan"_s}, {1, u"7"_s}}), QList<int>{1});
}

TEST(RowFilter, WhatIsEmptyAndWhatIsNot)
{
    EXPECT_EQ(passed({{1, u"="_s}}), QList<int>{2});
    EXPECT_EQ(passed({{2, u"="_s}}), QList<int>{1});
    EXPECT_EQ(passed({{2, u" <> "_s}}), (QList<int>{0, 2, 3}));
}

TEST(RowFilter, WhatDiffersSaysSomethingElse)
{
    EXPECT_EQ(passed({{1, u"<> 21.5"_s}}), (QList<int>{1, 2, 3}));
    EXPECT_EQ(passed({{2, u"<>ON"_s}}), (QList<int>{1, 3}));
}

TEST(RowFilter, ColumnsThatAreNotMeantCountForNothing)
{
    const auto texts = [](int row, int column) -> const QString & {
        return points.at(row).at(column);
    };
    EXPECT_EQ(filteredRows(4, {1, 2}, {typedFilter(u"fan"_s, any)}, texts), QList<int>());
    EXPECT_EQ(filteredRows(0, {0}, {typedFilter(u"fan"_s, any)}, texts), QList<int>());
}

// Of a time as users see it and as it is kept, "=" and "<>" mean either.
TEST(RowFilter, WhatIsShownCountsBesideWhatIsKept)
{
    const QList<QString> kept{u"90"_s, u"1:30"_s, u"30"_s};
    const auto texts = [&kept](int row, int) -> const QString & { return kept.at(row); };
    const auto shown = [](int, const QString &text) { return text == u"90"_s ? u"1:30"_s : text; };
    const auto rows = [&](const QString &typed) {
        return filteredRows(3, {0}, {typedFilter(typed, 0)}, texts, shown);
    };
    EXPECT_EQ(rows(u"1:3"_s), (QList<int>{0, 1}));
    EXPECT_EQ(rows(u"90"_s), QList<int>{0});
    EXPECT_EQ(rows(u"<>1:30"_s), QList<int>{2});
    EXPECT_EQ(rows(u"<>90"_s), (QList<int>{1, 2}));
    EXPECT_EQ(rows(u"<>30"_s), (QList<int>{0, 1}));
}
