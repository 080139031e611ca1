#include "support/Gauge.h"

#include "support/QtPrinters.h"
#include <ORVTListview/LateCall.h>

#include <gtest/gtest.h>

#include <limits>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

class LateCall : public ::testing::Test
{
protected:
    // What the call returns; arguments and result stay to be looked at.
    qint32 call(const QString &name, const QVariantList &given = {})
    {
        arguments = given;
        error = callLate(gauge, Gauge::members(), name, arguments, result);
        return error ? error->Number() : CallSucceeded;
    }

    Gauge gauge;
    QVariantList arguments;
    QVariant result;
    std::optional<Error> error;
};

TEST_F(LateCall, ReadsAndSetsAProperty)
{
    EXPECT_EQ(call(u"Caption"_s, {u"Boiler"_s}), CallSucceeded);
    EXPECT_EQ(gauge.Caption(), u"Boiler"_s);
    EXPECT_EQ(call(u"Caption"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"Boiler"_s));
    EXPECT_EQ(call(u"caption"_s, {12}), CallSucceeded);
    EXPECT_EQ(gauge.Caption(), u"12"_s);
    EXPECT_FALSE(result.isValid());
}

TEST_F(LateCall, RefusesWhatAPropertyCannotDo)
{
    EXPECT_EQ(call(u"Count"_s, {1}), WrongArgumentCount);
    EXPECT_EQ(call(u"IsWait"_s), WrongArgumentCount);
    EXPECT_EQ(call(u"Caption"_s, {1, 2}), WrongArgumentCount);
    EXPECT_EQ(call(u"Count"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant::fromValue<qint16>(7));
    EXPECT_EQ(call(u"IsWait"_s, {u"true"_s}), CallSucceeded);
    EXPECT_TRUE(gauge.isWait());
}

TEST_F(LateCall, RefusesAnUnknownNameAndAnEvent)
{
    result = 5;
    EXPECT_EQ(call(u"Colour"_s), UnknownMember);
    EXPECT_EQ(error->Source(), u"Gauge.Colour"_s);
    EXPECT_FALSE(error->Description().isEmpty());
    EXPECT_EQ(result, QVariant(5));
    EXPECT_EQ(call(u"Click"_s), UnknownMember);
}

TEST_F(LateCall, FillsInOptionalArguments)
{
    EXPECT_EQ(call(u"Joined"_s, {u"a"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"aa"_s));
    EXPECT_EQ(call(u"Joined"_s, {u"a"_s, QVariant(), u"b"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"aab"_s));
    EXPECT_EQ(call(u"Joined"_s, {u"a"_s, 3, u"b"_s}), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"aaab"_s));
}

TEST_F(LateCall, RefusesAWrongCount)
{
    EXPECT_EQ(call(u"Joined"_s), WrongArgumentCount);
    EXPECT_EQ(error->Source(), u"Gauge.Joined"_s);
    EXPECT_EQ(call(u"Joined"_s, {1, 2, 3, 4}), WrongArgumentCount);
    EXPECT_EQ(call(u"Clear"_s, {1}), WrongArgumentCount);
}

TEST_F(LateCall, BringsBackWhatGoesBothWaysAndOut)
{
    EXPECT_EQ(call(u"Doubled"_s, {u"21"_s, u"x"_s, u"whatever"_s}), CallSucceeded);
    EXPECT_EQ(arguments,
              QVariantList({QVariant::fromValue<qint16>(42), u"xd"_s, QVariant::fromValue(10)}));
    EXPECT_EQ(call(u"Doubled"_s, {21}), CallSucceeded);
    EXPECT_EQ(arguments, QVariantList({QVariant::fromValue<qint16>(42)}));
}

TEST_F(LateCall, RefusesWhatCannotBeConverted)
{
    EXPECT_EQ(call(u"Joined"_s, {u"a"_s, u"many"_s}), WrongArgumentType);
    EXPECT_TRUE(error->Description().contains(u"Count"_s)) << qPrintable(error->Description());
    EXPECT_EQ(call(u"Doubled"_s, {QVariant()}), WrongArgumentType);
    EXPECT_EQ(call(u"Caption"_s, {QVariant(QVariantList{1, 2})}), WrongArgumentType);
    EXPECT_EQ(gauge.Caption(), QString());
}

TEST_F(LateCall, RefusesNumbersThatDoNotFit)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    for (const QVariant &number :
         {QVariant(32768), QVariant(-32769), QVariant(1e300), QVariant(nan), QVariant(u"70000"_s)})
        EXPECT_EQ(call(u"Doubled"_s, {number}), WrongArgumentType) << qPrintable(number.toString());
    EXPECT_EQ(call(u"Type"_s, {Q_INT64_C(1) << 32}), WrongArgumentType);
    EXPECT_EQ(call(u"Doubled"_s, {Q_UINT64_C(0xFFFFFFFFFFFFFFFF)}), WrongArgumentType);
    EXPECT_EQ(call(u"Doubled"_s, {-16384}), CallSucceeded);
    EXPECT_EQ(arguments.constFirst(), QVariant::fromValue<qint16>(-32768));
    EXPECT_EQ(call(u"Doubled"_s, {16383.4}), CallSucceeded);
    EXPECT_EQ(arguments.constFirst(), QVariant::fromValue<qint16>(32766));
}

TEST_F(LateCall, TakesEnumerationsByNumberAndName)
{
    EXPECT_EQ(call(u"Type"_s, {9}), CallSucceeded);
    EXPECT_EQ(gauge.Type(), dsNvi);
    EXPECT_EQ(call(u"Type"_s, {u"dsLog"_s}), CallSucceeded);
    EXPECT_EQ(gauge.Type(), dsLog);
    EXPECT_EQ(call(u"Type"_s), CallSucceeded);
    EXPECT_EQ(result.toInt(), 6);
    EXPECT_EQ(call(u"Type"_s, {u"dsNothing"_s}), WrongArgumentType);
}

TEST_F(LateCall, HandsOverObjectsOfTheRightClassOnly)
{
    Gauge owner;
    QObject stranger;
    EXPECT_EQ(call(u"GiveTo"_s, {QVariant::fromValue<QObject *>(&owner)}), CallSucceeded);
    EXPECT_EQ(call(u"Owner"_s), CallSucceeded);
    EXPECT_EQ(result.value<QObject *>(), &owner);
    EXPECT_EQ(call(u"GiveTo"_s, {QVariant::fromValue(&stranger)}), WrongArgumentType);
    EXPECT_EQ(gauge.Owner(), &owner);
    EXPECT_EQ(call(u"GiveTo"_s, {QVariant()}), CallSucceeded);
    EXPECT_EQ(gauge.Owner(), nullptr);
    EXPECT_EQ(call(u"GiveTo"_s, {QVariant::fromValue(nullptr)}), CallSucceeded);
    EXPECT_EQ(call(u"GiveTo"_s, {3}), WrongArgumentType);
}

TEST_F(LateCall, HandsOverVariantsAsTheyAre)
{
    EXPECT_EQ(call(u"Anything"_s, {u"text"_s}), CallSucceeded);
    EXPECT_EQ(gauge.Anything(), QVariant(u"text"_s));
    EXPECT_EQ(call(u"Anything"_s), CallSucceeded);
    EXPECT_EQ(result, QVariant(u"text"_s));
    EXPECT_EQ(call(u"Anything"_s, {QVariant()}), CallSucceeded);
    EXPECT_FALSE(gauge.Anything().isValid());
}

TEST_F(LateCall, ReturnsTheNumberOfARaisedError)
{
    result = 5;
    EXPECT_EQ(call(u"Fail"_s, {ObjectErrorBase + 3}), ObjectErrorBase + 3);
    EXPECT_EQ(error->Source(), u"Gauge.Fail"_s);
    EXPECT_EQ(error->Description(), u"Failed"_s);
    EXPECT_EQ(result, QVariant(5));
    EXPECT_EQ(call(u"BreakOddly"_s), UnexpectedFailure);
    EXPECT_EQ(call(u"Break"_s), UnexpectedFailure);
    EXPECT_EQ(error->Description(), u"broken"_s);
}

} // namespace
