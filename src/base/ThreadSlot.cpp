#include "base/ThreadSlot.h"

#include "base/ThreadState.h"

namespace ORVTListview {

std::unique_ptr<ThreadState> &slotOfThread()
{
    thread_local std::unique_ptr<ThreadState> state;
    return state;
}

} // namespace ORVTListview
