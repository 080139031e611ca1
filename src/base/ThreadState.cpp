#include "base/ThreadState.h"

#include "base/ThreadSlot.h"

#include <utility>

namespace ORVTListview {
namespace {

ThreadSlot held(std::unique_ptr<ThreadState> state)
{
    return {state.release(), [](void *part) { delete static_cast<ThreadState *>(part); }};
}

std::unique_ptr<ThreadState> taken(ThreadSlot &slot)
{
    return std::unique_ptr<ThreadState>(static_cast<ThreadState *>(slot.release()));
}

} // namespace

ThreadState::ThreadState() = default;
ThreadState::~ThreadState() = default;

ThreadState &ThreadState::current()
{
    ThreadSlot &slot = slotOfThread();
    if (!slot)
        slot = held(std::make_unique<ThreadState>());
    return *static_cast<ThreadState *>(slot.get());
}

ThreadState::Fresh::Fresh()
    : m_former(taken(slotOfThread()))
{
    slotOfThread() = held(std::make_unique<ThreadState>());
}

ThreadState::Fresh::~Fresh()
{
    slotOfThread() = held(std::move(m_former));
}

} // namespace ORVTListview
