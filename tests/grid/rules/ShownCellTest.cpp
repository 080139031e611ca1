#include "grid/rules/ShownCell.h"
#include "shared/texts/TextTable.h"
#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(ShownCell, NumbersHaveTheCountrysSign)
{
    const QLocale german(QLocale::German);
    EXPECT_EQ(shownNumber(u"21.5"_s, german), u"21,5"_s);
    EXPECT_EQ(shownNumber(u" -0.25 °C"_s, german), u" -0,25 °C"_s);
    EXPECT_EQ(shownNumber(u"21.5"_s, QLocale::c()), u"21.5"_s);
    for (const QString &text : {u""_s, u"On"_s, u"100"_s, u"1.2.3"_s, u"v1.5"_s, u"3."_s, u"."_s})
        EXPECT_EQ(shownNumber(text, german), text);
}

TEST(ShownCell, StatesAreSpokenInWords)
{
    EXPECT_EQ(spokenCell(u"21.5"_s, CellState::Alarm), u"21.5, Alarm"_s);
    EXPECT_EQ(spokenCell(u""_s, CellState::Old), u"Old"_s);
    EXPECT_EQ(spokenCell(u"On"_s, CellState::Plain), u"On"_s);
    EXPECT_EQ(spokenCell(u"On"_s, CellState::Changed), u"On, Changed"_s);
    EXPECT_EQ(spokenCell(u"On"_s, CellState::Manual), u"On, By hand"_s);
    EXPECT_EQ(stateWord(CellState::Plain), QString());
}
