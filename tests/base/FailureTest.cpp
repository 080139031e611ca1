#include "base/Failure.h"
#include "support/Raised.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>
#include <stdexcept>
#include <string>

using namespace ORVTListview;
using namespace Qt::StringLiterals;

namespace {

using Call = std::function<void()>;

const Call nothing = [] {};
const Call ownError = [] { throw Error(Overflow, u"Host.Item"_s, u"Too large"_s); };
const Call wordlessError = [] { throw Error(Overflow, u"Host.Item"_s, QString()); };
const Call exception = [] {
    throw std::runtime_error("gr\xC3\xB6\xC3\x9F"
                             "er");
};
const Call wordlessException = [] { throw std::runtime_error(std::string()); };
const Call oddity = [] { throw 42; };

Error raised(const Call &call)
{
    const auto error = raisedBy([&] { raisingErrors(u"Host.Count"_s, call); });
    return error.value_or(Error(0, {}, {}));
}

} // namespace

TEST(RaisingErrors, LetsAnErrorThroughAsItIs)
{
    const Error error = raised(ownError);
    EXPECT_EQ(error.Number(), Overflow);
    EXPECT_EQ(error.Source(), u"Host.Item"_s);
    EXPECT_EQ(error.Description(), u"Too large"_s);
}

TEST(RaisingErrors, MakesOneOfTheSourceOfAnythingElse)
{
    const Error known = raised(exception);
    EXPECT_EQ(known.Number(), InvalidCall);
    EXPECT_EQ(known.Source(), u"Host.Count"_s);
    EXPECT_EQ(known.Description(), u"größer"_s);
    const Error unknown = raised(oddity);
    EXPECT_EQ(unknown.Number(), InvalidCall);
    EXPECT_EQ(unknown.Source(), u"Host.Count"_s);
    EXPECT_EQ(unknown.Description(), u"Unknown failure"_s);
}

TEST(RaisingErrors, HandsOverWhatTheCallGives)
{
    EXPECT_EQ(raisingErrors(u"Host.Count"_s, [] { return 7; }), 7);
    int there = 1;
    int &same = raisingErrors(u"Host.Count"_s, [&there]() -> int & { return there; });
    EXPECT_EQ(&same, &there);
    EXPECT_EQ(raised(nothing).Number(), 0);
}

TEST(FailureOf, DescribesWhatWasThrown)
{
    EXPECT_EQ(failureOf(nothing), QString());
    EXPECT_EQ(failureOf(ownError), u"Too large"_s);
    EXPECT_EQ(failureOf(exception), u"größer"_s);
    EXPECT_EQ(failureOf(oddity), u"Unknown failure"_s);
}

TEST(FailureOf, IsNeverEmptyForAFailure)
{
    EXPECT_EQ(failureOf(wordlessError), u"Unknown failure"_s);
    EXPECT_EQ(failureOf(wordlessException), u"Unknown failure"_s);
    EXPECT_FALSE(failureOf(Call([] { throw std::bad_alloc(); })).isEmpty());
}
