// Classes that come and go, as with libraries that are loaded, while other threads ask.

#include "members/HandedClass.h"

#include <gtest/gtest.h>

#include <atomic>
#include <latch>
#include <thread>
#include <vector>

using namespace ORVTListview;

namespace {

QList<Member> noMembers()
{
    return {};
}

TEST(HandedClass, ComesAndGoesWhileOthersAsk)
{
    constexpr int rounds = 2'000'000;
    std::latch begin(4);
    const QList<QMetaType> before = HandedClass::types();
    ASSERT_FALSE(before.isEmpty());
    std::atomic<int> missed = 0;
    const auto comeAndGo = [&] {
        begin.arrive_and_wait();
        for (int i = 0; i < rounds; ++i) {
            const HandedClass first(QMetaType::fromType<char *>(), &noMembers);
            const HandedClass second(QMetaType::fromType<short *>(), &noMembers);
        }
    };
    const auto ask = [&] {
        begin.arrive_and_wait();
        for (int i = 0; i < rounds; ++i) {
            if (!HandedClass::members(before.constFirst()))
                ++missed;
        }
    };
    {
        std::vector<std::jthread> threads;
        for (int i = 0; i < 2; ++i) {
            threads.emplace_back(comeAndGo);
            threads.emplace_back(ask);
        }
    }
    EXPECT_EQ(missed, 0);
    EXPECT_EQ(HandedClass::types(), before);
}

} // namespace
