#include "grid/rules/RowOrder.h"
#include "grid/rules/NaturalOrder.h"
#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// The texts, sorted, with bars between.
QString sortedTexts(const QStringList &texts, bool isDescending = false)
{
    QList<int> rows;
    for (int row = 0; row < texts.size(); ++row)
        rows.append(row);
    const QList<int> sorted =
        sortedRows(rows, {{0, isDescending}},
                   [&texts](int row, int) -> const QString & { return texts.at(row); });
    QStringList inOrder;
    for (const int row : sorted)
        inOrder.append(texts.at(row));
    return inOrder.join(u'|');
}

} // namespace

TEST(NaturalOrder, DigitsInNamesAreNumbers)
{
    EXPECT_EQ(sortedTexts({u"Fan10"_s, u"Fan2"_s, u"Fan"_s, u"fan1"_s, u"Fan2b"_s, u"Fan2a"_s}),
              u"Fan|fan1|Fan2|Fan2a|Fan2b|Fan10"_s);
    EXPECT_EQ(sortedTexts({u"A007"_s, u"A7"_s, u"A6"_s, u"A08"_s}), u"A6|A007|A7|A08"_s);
    EXPECT_EQ(sortedTexts({u"A99999999999999999999999"_s, u"A100000000000000000000000"_s}),
              u"A99999999999999999999999|A100000000000000000000000"_s);
}

TEST(NaturalOrder, NumbersComeByTheirValue)
{
    EXPECT_EQ(sortedTexts({u"21.5"_s, u"-3"_s, u"100"_s, u"9"_s, u"-10"_s, u"+2"_s, u"0.5"_s}),
              u"-10|-3|0.5|+2|9|21.5|100"_s);
    EXPECT_EQ(sortedTexts({u"0.30000000000000004"_s, u"0.3"_s, u"0.29999999999999999"_s,
                           u"12345678901234567"_s, u"12345678901234"_s, u"-0.0"_s, u"-0.01"_s}),
              u"-0.01|-0.0|0.29999999999999999|0.3|0.30000000000000004|12345678901234|"
              "12345678901234567"_s);
    EXPECT_EQ(sortedTexts({u"100 °C"_s, u"21.5 °C"_s, u"21.5 K"_s, u"3 %"_s, u"3"_s}),
              u"3|3 %|21.5 K|21.5 °C|100 °C"_s);
}

TEST(NaturalOrder, AUnitMayStandRightBehindItsNumber)
{
    EXPECT_EQ(sortedTexts({u"10kW"_s, u"1.3kW"_s, u"2 kW"_s, u"-4.5kWh/m²"_s, u"24VDC"_s}),
              u"-4.5kWh/m²|1.3kW|2 kW|10kW|24VDC"_s);
    EXPECT_EQ(lengthOfNumber(u"1.3kW"), 3);
    for (const QStringView name : {u"2ndFan", u"3.4.5", u"4a7", u"5_a", u"6a_b", u"7a.b"})
        EXPECT_EQ(lengthOfNumber(name), 0) << name.toString().toStdString();
    EXPECT_TRUE(NaturalKey::isSame(NaturalKey(u"1.3kW"_s), NaturalKey(u"1.30 kW"_s)));
}

// What decides between most texts at once agrees with what compares them as a whole.
TEST(NaturalOrder, RowsAreSortedAsTheirTextsCompare)
{
    const QStringList parts{u""_s,  u"0"_s, u"7"_s, u"12"_s,      u"120"_s,
                            u"a"_s, u"B"_s, u"ä"_s, u"Supply "_s, u"Supply Air "_s,
                            u"."_s, u"-"_s, u" "_s, u"\uffff"_s};
    QStringList texts;
    for (const QString &first : parts) {
        for (const QString &second : parts) {
            for (const QString &third : parts)
                texts.append(first + second + third);
        }
    }
    for (const QStringList &some : {texts, texts.filter(u"Supply Air "_s), QStringList{u"a"_s}}) {
        for (const bool isDescending : {false, true}) {
            QStringList expected = some;
            std::stable_sort(expected.begin(), expected.end(),
                             [&](const QString &one, const QString &other) {
                                 const NaturalKey first(one);
                                 const NaturalKey second(other);
                                 if (first.isEmpty() || second.isEmpty() || !isDescending)
                                     return NaturalKey::compared(first, second) < 0;
                                 return NaturalKey::compared(second, first) < 0;
                             });
            EXPECT_EQ(sortedTexts(some, isDescending), expected.join(u'|'));
        }
    }
}

TEST(NaturalOrder, NumbersStandBeforeNamesAndNothingComesLast)
{
    const QStringList texts{u"Off"_s, u" "_s, u"21.5"_s, u""_s, u"2ndFan"_s, u"?"_s};
    EXPECT_EQ(sortedTexts(texts), u"21.5|2ndFan|?|Off| |"_s);
    EXPECT_EQ(sortedTexts(texts, true), u"Off|?|2ndFan|21.5| |"_s);
}

TEST(NaturalOrder, LetterCaseDecidesLast)
{
    EXPECT_EQ(sortedTexts({u"pump b"_s, u"PUMP A"_s, u"Pump a"_s, u"pump a"_s}),
              u"PUMP A|Pump a|pump a|pump b"_s);
}

TEST(NaturalOrder, IsAnOrder)
{
    const QStringList texts{u""_s,    u"1"_s,   u"01"_s, u"1.0"_s, u"a"_s,     u"A"_s,   u"a1"_s,
                            u"a01"_s, u"a 1"_s, u"-1"_s, u"-"_s,   u"1a"_s,    u"1 a"_s, u"1.2.3"_s,
                            u"é"_s,   u"z"_s,   u"Z9"_s, u"z10"_s, u"\u0661"_s};
    for (const QString &first : texts) {
        for (const QString &second : texts) {
            const int order = NaturalKey::compared(NaturalKey(first), NaturalKey(second));
            const int back = NaturalKey::compared(NaturalKey(second), NaturalKey(first));
            EXPECT_EQ(order<0, back> 0) << first.toStdString() << "/" << second.toStdString();
            EXPECT_EQ(order == 0, first == second)
                << first.toStdString() << "/" << second.toStdString();
            for (const QString &third : texts) {
                const int on = NaturalKey::compared(NaturalKey(second), NaturalKey(third));
                if (order <= 0 && on <= 0) {
                    EXPECT_LE(NaturalKey::compared(NaturalKey(first), NaturalKey(third)), 0)
                        << first.toStdString() << "/" << second.toStdString() << "/"
                        << third.toStdString();
                }
            }
        }
    }
}

TEST(RowOrder, SeveralKeysDecideOneAfterTheOther)
{
    const QList<QStringList> cells{
        {u"b"_s, u"1"_s}, {u"a"_s, u"2"_s}, {u"b"_s, u"3"_s}, {u"a"_s, u"2"_s}, {u""_s, u"9"_s}};
    const CellTexts texts = [&cells](int row, int column) -> const QString & {
        return cells.at(row).at(column);
    };
    EXPECT_EQ(sortedRows({0, 1, 2, 3, 4}, {{0, false}, {1, true}}, texts),
              (QList<int>{1, 3, 2, 0, 4}));
    EXPECT_EQ(sortedRows({3, 1, 0}, {{0, false}}, texts), (QList<int>{3, 1, 0}));
    EXPECT_EQ(sortedRows({2, 0, 1}, {}, texts), (QList<int>{2, 0, 1}));
}

TEST(RowOrder, AThirdClickGivesTheOrderBack)
{
    QList<SortKey> keys = clickedKeys({}, 3, false);
    EXPECT_EQ(keys, (QList<SortKey>{{3, false}}));
    keys = clickedKeys(keys, 3, false);
    EXPECT_EQ(keys, (QList<SortKey>{{3, true}}));
    EXPECT_EQ(clickedKeys(keys, 3, false), QList<SortKey>());
    EXPECT_EQ(clickedKeys(keys, 2, false), (QList<SortKey>{{2, false}}));
}

TEST(RowOrder, ClicksCanAddKeys)
{
    QList<SortKey> keys = clickedKeys({{3, true}}, 1, true);
    EXPECT_EQ(keys, (QList<SortKey>{{3, true}, {1, false}}));
    keys = clickedKeys(keys, 1, true);
    EXPECT_EQ(keys, (QList<SortKey>{{3, true}, {1, true}}));
    EXPECT_EQ(clickedKeys(keys, 3, true), (QList<SortKey>{{1, true}}));
    EXPECT_EQ(clickedKeys(keys, 1, false), (QList<SortKey>{{1, false}}));
}

TEST(SortKey, IsEqualInColumnAndDirection)
{
    expectEveryFieldCounts(
        SortKey{2, false}, [](SortKey &other) { other.column = 1; },
        [](SortKey &other) { other.isDescending = true; });
}
