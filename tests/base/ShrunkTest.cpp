#include "support/Shrunk.h"

#include <gtest/gtest.h>

#include <numeric>

namespace {

using Steps = std::vector<int>;

Steps steps(int count)
{
    Steps steps(static_cast<std::size_t>(count));
    std::iota(steps.begin(), steps.end(), 0);
    return steps;
}

bool has(const Steps &steps, int step)
{
    return std::find(steps.begin(), steps.end(), step) != steps.end();
}

} // namespace

TEST(Shrunk, LeavesTheStepsThatFailTogether)
{
    const auto fails = [](const Steps &steps) { return has(steps, 3) && has(steps, 700); };
    EXPECT_EQ(shrunk(steps(1000), fails), (Steps{3, 700}));
}

// One can only be missed after another: single steps are tried again.
TEST(Shrunk, TriesAgainWhatCouldNotBeMissedBefore)
{
    const auto fails = [](const Steps &steps) { return has(steps, 5) || !has(steps, 1); };
    EXPECT_EQ(shrunk(steps(6), fails), Steps());
}

TEST(Shrunk, AsksLittle)
{
    int asked = 0;
    const auto fails = [&asked](const Steps &steps) {
        ++asked;
        return has(steps, 4999);
    };
    EXPECT_EQ(shrunk(steps(10'000), fails), Steps{4999});
    EXPECT_LT(asked, 100);
}

TEST(Shrunk, LeavesNothingOfWhatFailsAlways)
{
    EXPECT_EQ(shrunk(steps(7), [](const Steps &) { return true; }), Steps());
    EXPECT_EQ(shrunk(Steps(), [](const Steps &) { return true; }), Steps());
}
