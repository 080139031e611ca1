#include "base/ThreadState.h"

#include "base/ThreadSlot.h"

#include <utility>

namespace ORVTListview {

ThreadState::ThreadState() = default;
ThreadState::~ThreadState() = default;

ThreadState &ThreadState::current()
{
    std::unique_ptr<ThreadState> &state = slotOfThread();
    if (!state)
        state = std::make_unique<ThreadState>();
    return *state;
}

ThreadState::Fresh::Fresh()
    : m_former(std::exchange(slotOfThread(), std::make_unique<ThreadState>()))
{
}

ThreadState::Fresh::~Fresh()
{
    slotOfThread() = std::move(m_former);
}

} // namespace ORVTListview
