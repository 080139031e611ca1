#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <random>
#include <utility>
#include <vector>

// What the random tests start from. The environment says otherwise: ORVT_TEST_SEED
// repeats what a failed test has told, ORVT_TEST_STEPS makes it longer or shorter.

inline std::optional<unsigned> givenNumber(const char *name)
{
    const char *given = std::getenv(name);
    if (!given || !*given)
        return std::nullopt;
    return static_cast<unsigned>(std::strtoul(given, nullptr, 10));
}

// Another one in every run, unless there is a usual one. It is told at once, since a
// test may end with its process.
inline unsigned randomSeed(std::optional<unsigned> usual = std::nullopt)
{
    const std::optional<unsigned> given = givenNumber("ORVT_TEST_SEED");
    const unsigned seed = given ? *given : usual ? *usual : std::random_device{}();
    std::printf("ORVT_TEST_SEED=%u\n", seed);
    std::fflush(stdout);
    return seed;
}

// The usual seeds, or the one that is given. Tests name the seed that failed.
inline std::vector<unsigned> randomSeeds(std::vector<unsigned> usual)
{
    const std::optional<unsigned> given = givenNumber("ORVT_TEST_SEED");
    return given ? std::vector<unsigned>{*given} : usual;
}

// From 1 to count.
inline std::vector<unsigned> randomSeeds(unsigned count)
{
    std::vector<unsigned> usual(count);
    for (unsigned i = 0; i < count; ++i)
        usual[i] = i + 1;
    return randomSeeds(std::move(usual));
}

// A part of the usual ones (ORVT_TEST_PART=4: a quarter) where a step takes long, as under
// sanitizers.
inline int randomSteps(int usual)
{
    if (const std::optional<unsigned> given = givenNumber("ORVT_TEST_STEPS"))
        return static_cast<int>(*given);
    const auto part = static_cast<int>(givenNumber("ORVT_TEST_PART").value_or(1));
    return std::max(1, usual / std::max(1, part));
}
