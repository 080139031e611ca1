#pragma once

#include <exception>
#include <functional>

// While one lives, the n-th call of operator new from here on throws std::bad_alloc, and
// so do those behind it when the memory stays short. What the toolkit takes by malloc
// does not fail.
class FailingAllocation
{
public:
    enum class Shortage { Once, FromThenOn };

    FailingAllocation(int call, Shortage shortage);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation &) = delete;
    FailingAllocation &operator=(const FailingAllocation &) = delete;

    static bool hasFailed();
};

// What came of an operation.
enum class Outcome {
    Finished, // no allocation failed
    Coped,    // one did, and it came to its end
    Raised,
};

// Carries it out with its n-th allocation failing. Throws what is neither Error nor
// std::bad_alloc.
Outcome withFailingAllocation(int call, FailingAllocation::Shortage shortage,
                              const std::function<void()> &operation);
