#include "shared/points/HostPoints.h"
#include "support/MisbehavingHost.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;
using Misbehaving::In;
using Misbehaving::Throws;

TEST(HostPoints, WhatACollectionThrowsLeavesAsError)
{
    Misbehaving::Points points;
    for (const In where : {In::Count, In::Item}) {
        for (const Throws what : Misbehaving::all) {
            points.fault = {what, where};
            const auto error = raisedBy([&] { HostPoints::read(&points, u"Member"_s); });
            ASSERT_TRUE(error);
            const bool isTheHosts = what == Throws::AnError;
            EXPECT_EQ(error->Number(), isTheHosts ? 4711 : qint32{InvalidCall});
            EXPECT_EQ(error->Source(), isTheHosts ? u"Host"_s : u"Member"_s);
            EXPECT_EQ(error->Description(),
                      what == Throws::ANumber ? u"Unknown failure"_s : u"The points are away"_s);
        }
    }
    points.fault = {};
    EXPECT_EQ(HostPoints::read(&points, u"Member"_s).size(), 10);
}

TEST(HostPoints, AFailedLookupFindsNothing)
{
    Misbehaving::Points points;
    EXPECT_TRUE(HostPoints::find(&points, u"p7"_s));
    for (const Throws what : Misbehaving::all) {
        points.fault = {what, In::Find};
        EXPECT_FALSE(HostPoints::find(&points, u"p7"_s));
    }
    EXPECT_FALSE(HostPoints::find(nullptr, u"p7"_s));
}

TEST(HostPoints, AWrongCountIsNoHarm)
{
    Misbehaving::Points boasting(Misbehaving::boast);
    EXPECT_EQ(HostPoints::read(&boasting, {}).size(), 10);
    Misbehaving::Points negative(-5);
    EXPECT_EQ(HostPoints::read(&negative, {}).size(), 0);
    Misbehaving::Families manyFamilies(Misbehaving::boast);
    EXPECT_EQ(HostPoints::read(&manyFamilies, {}).size(), 10);
    Misbehaving::Families negativeFamilies(-2147483647 - 1);
    EXPECT_EQ(HostPoints::read(&negativeFamilies, {}).size(), 0);
}

TEST(HostPoints, FamiliesThatFailRaiseErrors)
{
    Misbehaving::Families families;
    for (const In where :
         {In::Count, In::Item, In::Name, In::NumberFormat, In::LowerBound, In::UpperBound}) {
        for (const Throws what : Misbehaving::all) {
            families.fault = {what, where};
            EXPECT_TRUE(raisedBy([&] { HostPoints::read(&families, u"Member"_s); }));
        }
    }
    families.fault = {};
    EXPECT_EQ(HostPoints::read(&families, {}).first(), u"F1_1"_s);
}

TEST(HostPoints, ReadingEndsWhereTheCollectionGoes)
{
    class Going final : public PointCollection
    {
    public:
        qint32 Count() const override { return 3; }
        std::optional<Point> Item(qint32 index) const override
        {
            if (index == 2)
                delete this;
            return Point{QString::number(index), 0};
        }
        std::optional<Point> Find(const QString &) const override { return std::nullopt; }
    };
    auto *points = new Going;
    EXPECT_EQ(HostPoints::read(points, {}).size(), 2);
}

TEST(HostPoints, OfACollectionThatGoesWhileItIsCountedThereIsNothing)
{
    class Going final : public PointCollection
    {
    public:
        qint32 Count() const override
        {
            delete this;
            return 3;
        }
        std::optional<Point> Item(qint32) const override { return Point{u"A"_s, 0}; }
        std::optional<Point> Find(const QString &) const override { return std::nullopt; }
    };
    EXPECT_TRUE(HostPoints::read(HostReference<PointCollection>(new Going), {}).isEmpty());
    EXPECT_TRUE(HostPoints::read(HostReference<PointCollection>(nullptr), {}).isEmpty());
    EXPECT_TRUE(HostPoints::read(HostReference<IndexedNameCollection>(nullptr), {}).isEmpty());
}

TEST(HostPoints, AReadyCollectionTellsOfItsChanges)
{
    PointList points;
    points.Add(u"A"_s);
    const KeyedCollection<Point> then = *HostPoints::contents(&points);
    const auto isUnchanged = [&] { return then.isSharedWith(*HostPoints::contents(&points)); };
    EXPECT_TRUE(isUnchanged());
    EXPECT_TRUE(points.Find(u"A"_s));
    EXPECT_THROW(points.Add(u"a"_s), Error);
    EXPECT_THROW(points.Remove(u"B"_s), Error);
    EXPECT_TRUE(isUnchanged());
    points.Add(u"B"_s);
    EXPECT_FALSE(isUnchanged());
    points.Remove(u"B"_s);
    EXPECT_FALSE(isUnchanged());

    Misbehaving::Points own;
    EXPECT_EQ(HostPoints::contents(&own), nullptr);
    EXPECT_EQ(HostPoints::contents(nullptr), nullptr);
}
