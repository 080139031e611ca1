#include "project/controller/DriftingValue.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(DriftingValue, NumbersDriftALittle)
{
    DriftingValue values;
    double value = 50;
    int changes = 0;
    for (int reading = 0; reading < 200; ++reading) {
        const QVariant next = values.next(value);
        ASSERT_EQ(next.typeId(), QMetaType::Double);
        ASSERT_LE(std::abs(next.toDouble() - value), std::abs(value) * 0.02 + 0.1501);
        ASSERT_DOUBLE_EQ(std::round(next.toDouble() * 10) / 10, next.toDouble());
        changes += next.toDouble() != value;
        value = next.toDouble();
    }
    EXPECT_GT(changes, 100);
}

TEST(DriftingValue, StatesChangeNowAndThen)
{
    DriftingValue values;
    QVariant state = u"On"_s;
    int changes = 0;
    for (int reading = 0; reading < 400; ++reading) {
        const QVariant next = values.next(state);
        ASSERT_TRUE(next == u"On"_s || next == u"Off"_s);
        changes += next != state;
        state = next;
    }
    EXPECT_GT(changes, 20);
    EXPECT_LT(changes, 120);
}

TEST(DriftingValue, OtherCellsStay)
{
    DriftingValue values;
    EXPECT_EQ(values.next(u"Auto"_s), QVariant(u"Auto"_s));
    EXPECT_EQ(values.next(true), QVariant(true));
    EXPECT_EQ(values.next({}), QVariant());
}
