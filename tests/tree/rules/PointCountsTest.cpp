#include "tree/rules/PointCounts.h"
#include "support/EveryFieldCounts.h"

#include <gtest/gtest.h>

using namespace ORVTListview;

TEST(PointCounts, AreEqualInAllKindsOnly)
{
    const PointCounts counts;
    EXPECT_EQ(counts.inputs + counts.fpaOutputs, 0);
    expectEveryFieldCounts(
        counts, [](PointCounts &other) { other.inputs = 1; },
        [](PointCounts &other) { other.outputs = 1; },
        [](PointCounts &other) { other.constants = 1; },
        [](PointCounts &other) { other.variables = 1; },
        [](PointCounts &other) { other.controllers = 1; },
        [](PointCounts &other) { other.schedules = 1; },
        [](PointCounts &other) { other.timers = 1; }, [](PointCounts &other) { other.oss = 1; },
        [](PointCounts &other) { other.fpaInputs = 1; },
        [](PointCounts &other) { other.fpaOutputs = 1; });
}
