#include "base/ShortInteger.h"

#include "support/Raised.h"

#include <gtest/gtest.h>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

qint16 converted(const QVariant &value)
{
    return toShortInteger(value, u"Test.Member"_s);
}

qint32 numberOfError(const QVariant &value)
{
    const auto error = raisedBy([&] { converted(value); });
    return error ? error->Number() : 0;
}

} // namespace

TEST(ShortInteger, TakesNumbersAndTextsAlike)
{
    EXPECT_EQ(converted(7), 7);
    EXPECT_EQ(converted(-1LL), -1);
    EXPECT_EQ(converted(u"7"_s), 7);
    EXPECT_EQ(converted(u" -12 "_s), -12);
    EXPECT_EQ(converted(u"1e2"_s), 100);
    EXPECT_EQ(converted(QVariant()), 0);
}

TEST(ShortInteger, AHalfGoesToTheEvenNeighbour)
{
    EXPECT_EQ(converted(0.5), 0);
    EXPECT_EQ(converted(1.5), 2);
    EXPECT_EQ(converted(u"2.5"_s), 2);
    EXPECT_EQ(converted(u"-2.51"_s), -3);
}

TEST(ShortInteger, HasBounds)
{
    EXPECT_EQ(converted(32767), 32767);
    EXPECT_EQ(converted(u"-32768.4"_s), -32768);
    EXPECT_EQ(numberOfError(32768), Overflow);
    EXPECT_EQ(numberOfError(u"-32769"_s), Overflow);
    EXPECT_EQ(numberOfError(u"1e999"_s), Overflow);
}

TEST(ShortInteger, RefusesWhatIsNoNumber)
{
    for (const QString &text : {u""_s, u"x"_s, u"1 2"_s, u"nan"_s, u"inf"_s, u"0x10"_s, u"1,5"_s})
        EXPECT_EQ(numberOfError(text), TypeMismatch) << text.toStdString();
    EXPECT_EQ(numberOfError(QVariant(QVariantList{1})), TypeMismatch);
    const auto error = raisedBy([] { converted(u"x"_s); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Source(), u"Test.Member"_s);
}
