#pragma once

#include <gtest/gtest.h>

// Each change makes a record that is equal to its copy and unequal to the record before.
template <typename Record, typename... Changes>
void expectEveryFieldCounts(const Record &record, Changes... change)
{
    int field = 0;
    const auto expectDifference = [&](auto changeIn) {
        Record other = record;
        EXPECT_TRUE(record == other) << "field " << field;
        changeIn(other);
        EXPECT_FALSE(record == other) << "field " << field;
        EXPECT_TRUE(Record(other) == other) << "field " << field;
        ++field;
    };
    (expectDifference(change), ...);
}
