#include "support/EveryFieldCounts.h"
#include "support/QtPrinters.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/IndexedName.h>
#include <ORVTListview/PointCollection.h>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

TEST(PointList, FindsByNameWithoutRegardToCase)
{
    PointList points;
    points.Add(u"Temp1"_s, 7);
    ASSERT_TRUE(points.Find(u"TEMP1"_s));
    EXPECT_EQ(points.Find(u"TEMP1"_s)->Name, u"Temp1"_s);
    EXPECT_EQ(points.Find(u"TEMP1"_s)->Data, 7);
    EXPECT_FALSE(points.Find(u"TEMP2"_s));
}

TEST(PointList, CountsFromOne)
{
    PointList points;
    points.Add(u"A"_s);
    points.Add(u"B"_s);
    EXPECT_EQ(points.Count(), 2);
    EXPECT_EQ(points.Item(1)->Name, u"A"_s);
    EXPECT_EQ(points.Item(2)->Name, u"B"_s);
    EXPECT_FALSE(points.Item(0));
    EXPECT_FALSE(points.Item(3));
}

TEST(PointList, KeepsPlacesAfterARemoval)
{
    PointList points;
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s})
        points.Add(name);
    points.Remove(u"a"_s);
    EXPECT_EQ(points.Item(1)->Name, u"B"_s);
    EXPECT_EQ(points.Find(u"C"_s)->Name, u"C"_s);
    EXPECT_FALSE(points.Find(u"A"_s));
    EXPECT_THROW(points.Remove(u"A"_s), Error);
    points.Clear();
    EXPECT_EQ(points.Count(), 0);
    EXPECT_FALSE(points.Find(u"B"_s));
}

TEST(PointList, RefusesAnEqualNameAndKeepsTheFirst)
{
    PointList points;
    points.Add(u"Temp1"_s, 1);
    EXPECT_THROW(points.Add(u"TEMP1"_s, 2), Error);
    EXPECT_EQ(points.Count(), 1);
    EXPECT_EQ(points.Item(1)->Data, 1);
}

TEST(HostReference, ReadsAsNullOnceTheObjectIsGone)
{
    auto points = std::make_unique<PointList>();
    HostReference<PointCollection> reference(points.get());
    EXPECT_EQ(reference.get(), points.get());
    points.reset();
    EXPECT_EQ(reference.get(), nullptr);
    EXPECT_EQ(HostReference<PointCollection>().get(), nullptr);
    EXPECT_EQ(HostReference<PointCollection>(nullptr).get(), nullptr);
}

TEST(IndexedNameList, HandsOutItsItems)
{
    IndexedNameList names;
    names.Add(u"Tmp"_s, u"00"_s, 1, 3);
    ASSERT_EQ(names.Count(), 1);
    const IndexedName *item = names.Item(1);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->Name(), u"Tmp"_s);
    EXPECT_EQ(item->NumberFormat(), u"00"_s);
    EXPECT_EQ(item->LowerBound(), 1);
    EXPECT_EQ(item->UpperBound(), 3);
    EXPECT_EQ(names.Item(0), nullptr);
    EXPECT_EQ(names.Item(2), nullptr);
}

TEST(Point, IsEqualInNameAndData)
{
    expectEveryFieldCounts(
        Point{u"Fan"_s, 7}, [](Point &other) { other.Name = u"fan"_s; },
        [](Point &other) { other.Data = 8; });
}
