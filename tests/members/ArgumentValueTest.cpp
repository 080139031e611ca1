#include "members/ArgumentValue.h"
#include <ORVTListview/PointCollection.h>
#include <ORVTListview/Types.h>

#include <QtCore/QObject>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

template <typename Wanted>
std::optional<Wanted> as(const QVariant &value)
{
    const auto converted = ArgumentValue::converted(value, QMetaType::fromType<Wanted>());
    return converted ? std::optional(converted->template value<Wanted>()) : std::nullopt;
}

enum class Small : quint8 { None, One };

} // namespace

TEST(ArgumentValue, AWholeNumberTakesWhatItHolds)
{
    EXPECT_EQ(as<qint16>(-32768), qint16(-32768));
    EXPECT_EQ(as<qint16>(-32769), std::nullopt);
    EXPECT_EQ(as<quint16>(65535), quint16(65535));
    EXPECT_EQ(as<quint16>(65536), std::nullopt);
    EXPECT_EQ(as<quint16>(-1), std::nullopt);
    EXPECT_EQ(as<quint32>(qint64(4294967295)), quint32(4294967295));
    EXPECT_EQ(as<quint32>(-1), std::nullopt);
    EXPECT_EQ(as<qint32>(quint32(4294967295)), std::nullopt);
}

TEST(ArgumentValue, TheLongestNumberTakesEveryOtherBelowTwoToThe63rd)
{
    constexpr auto most = std::numeric_limits<qint64>::max();
    constexpr auto least = std::numeric_limits<qint64>::min();
    EXPECT_EQ(as<qint64>(quint64(most)), most);
    EXPECT_EQ(as<qint64>(quint64(most) + 1), std::nullopt);
    EXPECT_EQ(as<qint64>(QVariant::fromValue<ulong>(quint64(most) + 1)), std::nullopt);
    EXPECT_EQ(as<qint64>(QVariant::fromValue<ulong>(7)), 7);
    EXPECT_EQ(as<qint64>(QString::number(least)), least);
    EXPECT_EQ(as<qint64>(-9223372036854775808.0), least);
}

TEST(ArgumentValue, AFractionBeyondAllWholeNumbersIsNone)
{
    EXPECT_EQ(as<qint64>(9223372036854775808.0), std::nullopt);
    EXPECT_EQ(as<qint64>(-9223372036854777856.0), std::nullopt);
    EXPECT_EQ(as<qint32>(std::nan("")), std::nullopt);
    EXPECT_EQ(as<qint32>(-std::numeric_limits<float>::infinity()), std::nullopt);
    EXPECT_EQ(as<qint32>(3.0f), 3);
    EXPECT_EQ(as<qint32>(3e9f), std::nullopt);
}

TEST(ArgumentValue, AnEnumerationHasTheBoundsOfItsType)
{
    EXPECT_EQ(as<Small>(255), Small(255));
    EXPECT_EQ(as<Small>(256), std::nullopt);
    EXPECT_EQ(as<Small>(-1), std::nullopt);
    EXPECT_EQ(as<LwType>(6), dsLog);
    EXPECT_EQ(as<LwType>(qint64(1) << 40), std::nullopt);
}

TEST(ArgumentValue, AShortFractionIsNotMadeInfinite)
{
    EXPECT_EQ(as<float>(1.5), 1.5f);
    EXPECT_EQ(as<float>(1e300), std::nullopt);
    EXPECT_EQ(as<float>(-1e300), std::nullopt);
    ASSERT_TRUE(as<float>(std::numeric_limits<double>::infinity()));
    EXPECT_TRUE(std::isinf(*as<float>(std::numeric_limits<double>::infinity())));
    ASSERT_TRUE(as<float>(std::nan("")));
    EXPECT_TRUE(std::isnan(*as<float>(std::nan(""))));
}

TEST(ArgumentValue, NothingIsANullPointerAndNothingElse)
{
    const QVariant null = QVariant::fromValue(nullptr);
    for (const QVariant &nothing : {QVariant(), null}) {
        ASSERT_TRUE(as<QObject *>(nothing));
        EXPECT_EQ(*as<QObject *>(nothing), nullptr);
        ASSERT_TRUE(as<PointCollection *>(nothing));
        EXPECT_EQ(*as<PointCollection *>(nothing), nullptr);
        EXPECT_EQ(as<QString>(nothing), std::nullopt);
        EXPECT_EQ(as<qint32>(nothing), std::nullopt);
    }
    EXPECT_FALSE(as<QVariant>(QVariant())->isValid());
}

TEST(ArgumentValue, AVariantIsHandedOverAsWhatItHolds)
{
    const QVariant held = u"Boiler"_s;
    EXPECT_EQ(ArgumentValue::fromVariable(QMetaType::fromType<QVariant>(), &held), held);
    const qint16 number = 7;
    const QVariant made = ArgumentValue::fromVariable(QMetaType::fromType<qint16>(), &number);
    EXPECT_EQ(made, QVariant::fromValue(number));
    EXPECT_EQ(made.metaType(), QMetaType::fromType<qint16>());
}
