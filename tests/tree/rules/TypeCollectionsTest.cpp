#include "tree/rules/TypeCollections.h"

#include "shared/points/DisplayNames.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

const QList<qint32> order{1, 2, 3, 4, 11, 12, 6, 8, 7, 5, 9, 10, 0};

} // namespace

TEST(TypeCollections, NamesStandInTheFixedOrder)
{
    const KeyedCollection<QString> names = TypeCollections::names();
    ASSERT_EQ(names.Count(), 13);
    for (qint32 i = 1; i <= 13; ++i) {
        const qint32 type = order.at(i - 1);
        EXPECT_EQ(names.Item(i), displayName(type));
        EXPECT_EQ(names.Key(i), u"Key%1"_s.arg(type));
        EXPECT_EQ(names.Item(u"Key%1"_s.arg(type)), displayName(type));
    }
    EXPECT_EQ(names.Item(1), u"Variables"_s);
    EXPECT_EQ(names.Item(u"Key0"_s), u"Code"_s);
    EXPECT_EQ(names.Item(u"key1"_s), u"Variables"_s);
}

TEST(TypeCollections, ValuesStandInTheSameOrder)
{
    const KeyedCollection<qint32> values = TypeCollections::values();
    ASSERT_EQ(values.Count(), 13);
    for (qint32 i = 1; i <= 13; ++i) {
        EXPECT_EQ(values.Item(i), order.at(i - 1));
        EXPECT_EQ(values.Item(displayName(order.at(i - 1))), order.at(i - 1));
    }
    EXPECT_EQ(values.Item(u"Variables"_s), 1);
}

TEST(TypeCollections, EachCallMakesANewOne)
{
    KeyedCollection<QString> names = TypeCollections::names();
    names.Clear();
    EXPECT_EQ(TypeCollections::names().Count(), 13);
    EXPECT_TRUE(raisedBy([] { TypeCollections::values().Item(u"Schedules"_s); }));
}
