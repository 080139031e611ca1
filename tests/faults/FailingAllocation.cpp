#include "faults/FailingAllocation.h"

#include "faults/ProgramPlace.h"

#include <ORVTListview/Error.h>

#include <cstdlib>
#include <new>

namespace {

thread_local int callsLeft = 0; // 0: none fails
thread_local bool staysShort = false;
thread_local bool failed = false;

bool isToFail(const void *caller)
{
    // The libraries' and ours are told apart by who has called.
    if (callsLeft == 0 || !isInProgram(caller))
        return false;
    if (callsLeft > 1) {
        --callsLeft;
        return false;
    }
    if (!staysShort)
        callsLeft = 0;
    failed = true;
    return true;
}

void *allocated(std::size_t size, const void *caller)
{
    return isToFail(caller) ? nullptr : std::malloc(size == 0 ? 1 : size);
}

void *allocatedOrRaised(std::size_t size, const void *caller)
{
    void *memory = allocated(size, caller);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void *operator new(std::size_t size)
{
    return allocatedOrRaised(size, __builtin_return_address(0));
}

// What the toolkit's hashes are made of, which end the program for want of it.
void *operator new[](std::size_t size)
{
    return allocatedOrRaised(size, nullptr);
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return allocated(size, __builtin_return_address(0));
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void *memory, std::size_t) noexcept
{
    std::free(memory);
}

FailingAllocation::FailingAllocation(int call, Shortage shortage)
{
    failed = false;
    staysShort = shortage == Shortage::FromThenOn;
    callsLeft = call;
}

FailingAllocation::~FailingAllocation()
{
    callsLeft = 0;
}

bool FailingAllocation::hasFailed()
{
    return failed;
}

Outcome withFailingAllocation(int call, FailingAllocation::Shortage shortage,
                              const std::function<void()> &operation)
{
    try {
        const FailingAllocation failing(call, shortage);
        operation();
    } catch (const std::bad_alloc &) {
        return Outcome::Raised;
    } catch (const ORVTListview::Error &) {
        return Outcome::Raised;
    }
    return FailingAllocation::hasFailed() ? Outcome::Coped : Outcome::Finished;
}
