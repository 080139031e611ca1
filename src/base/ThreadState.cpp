#include "base/ThreadState.h"

#include <utility>

namespace ORVTListview {
namespace {

std::unique_ptr<ThreadState> &slotOfThread()
{
    thread_local std::unique_ptr<ThreadState> state;
    return state;
}

} // namespace

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
