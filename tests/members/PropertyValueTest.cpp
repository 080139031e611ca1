#include "members/PropertyValue.h"
#include <ORVTListview/Types.h>

#include <QtCore/QDate>
#include <QtCore/QPoint>

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

// A file gives every value as a text.
QVariant readText(const QString &text, const QVariant &byDefault)
{
    return PropertyValue::readText(text, byDefault);
}

} // namespace

TEST(PropertyValue, ATextStandsForATruthValueInFourSpellings)
{
    for (const QString &text : {u"true"_s, u"1"_s})
        EXPECT_EQ(readText(text, false), QVariant(true)) << text.toStdString();
    for (const QString &text : {u"false"_s, u"0"_s})
        EXPECT_EQ(readText(text, true), QVariant(false)) << text.toStdString();
    for (const QString &text : {u"TRUE"_s, u"yes"_s, u"2"_s, u""_s, u" 1"_s}) {
        EXPECT_EQ(readText(text, true), QVariant(true)) << text.toStdString();
        EXPECT_EQ(readText(text, false), QVariant(false)) << text.toStdString();
    }
}

TEST(PropertyValue, ATextStandsForANumberOfItsType)
{
    EXPECT_EQ(readText(u"-12"_s, 5), QVariant(-12));
    EXPECT_EQ(readText(u"12.5"_s, 5), QVariant(5));
    EXPECT_EQ(readText(u"99999999999999999999"_s, 5), QVariant(5));
    EXPECT_EQ(readText(u"70000"_s, QVariant::fromValue<qint16>(5)), QVariant::fromValue<qint16>(5));
    EXPECT_EQ(readText(u"12.5"_s, 1.0), QVariant(12.5));
    EXPECT_EQ(readText(u"1e2"_s, 1.0f), QVariant(100.0f));
    EXPECT_EQ(readText(u"much"_s, 1.0), QVariant(1.0));
    EXPECT_EQ(readText(u"6"_s, QVariant::fromValue(dsInput)).value<LwType>(), dsLog);
}

TEST(PropertyValue, ATextStandsForItselfWhereATextIsWanted)
{
    EXPECT_EQ(readText(u"1"_s, u"none"_s), QVariant(u"1"_s));
    EXPECT_EQ(readText(u"1"_s, QVariant()), QVariant(u"1"_s));
    EXPECT_EQ(readText(u"2024-05-06"_s, QDate(2000, 1, 1)), QVariant(QDate(2000, 1, 1)));
}

TEST(PropertyValue, WhatIsNoTextIsReadAsItIs)
{
    EXPECT_EQ(PropertyValue::readText(7, 5), QVariant(7));
    EXPECT_EQ(PropertyValue::readText(QVariant(), 5), QVariant(5));
    EXPECT_EQ(PropertyValue::readText(true, 5), QVariant(5));
}

TEST(PropertyValue, AWholeNumberIsANumberAndTheOtherWayRoundWhenNothingIsLost)
{
    EXPECT_EQ(PropertyValue::read(7, 1.5), QVariant(7.0));
    EXPECT_EQ(PropertyValue::read(7.0, 5), QVariant(7));
    EXPECT_EQ(PropertyValue::read(7.0f, 5), QVariant(7));
    EXPECT_EQ(PropertyValue::read(7.5, 5), QVariant(5));
    EXPECT_EQ(PropertyValue::read(u"7"_s, 1.5), QVariant(1.5));
    EXPECT_EQ(PropertyValue::read(true, 1.5), QVariant(1.5));
}

TEST(PropertyValue, OtherKindsAreTakenInTheirOwnTypeOnly)
{
    const QVariant place = QPoint(1, 2);
    EXPECT_EQ(PropertyValue::read(QPoint(3, 4), place), QVariant(QPoint(3, 4)));
    EXPECT_EQ(PropertyValue::read(QPointF(3, 4), place), place);
    EXPECT_EQ(PropertyValue::read(u"3,4"_s, place), place);
    EXPECT_EQ(PropertyValue::read(1, true), QVariant(true));
    EXPECT_EQ(PropertyValue::read(false, true), QVariant(false));
}

TEST(PropertyValue, EnumerationsAreKeptAsNumbers)
{
    const QVariant kept = PropertyValue::plain(QVariant::fromValue(dsLog));
    EXPECT_EQ(kept.metaType(), QMetaType::fromType<int>());
    EXPECT_EQ(kept, QVariant(6));
    EXPECT_EQ(PropertyValue::plain(u"6"_s), QVariant(u"6"_s));
}
