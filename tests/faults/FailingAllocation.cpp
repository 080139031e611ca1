#include "faults/FailingAllocation.h"

#include <ORVTListview/Error.h>

#include <cstdlib>
#include <new>

namespace {

thread_local int callsLeft = 0; // 0: none fails
thread_local bool staysShort = false;
thread_local bool failed = false;

bool isToFail()
{
    if (callsLeft == 0)
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

void *allocated(std::size_t size)
{
    void *memory = operator new(size, std::nothrow);
    if (!memory)
        throw std::bad_alloc();
    return memory;
}

} // namespace

void *operator new(std::size_t size)
{
    return allocated(size);
}

void *operator new[](std::size_t size)
{
    return allocated(size);
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return isToFail() ? nullptr : std::malloc(size == 0 ? 1 : size);
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
