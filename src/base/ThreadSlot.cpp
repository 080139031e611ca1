#include "base/ThreadSlot.h"

namespace ORVTListview {

ThreadSlot &slotOfThread()
{
    thread_local ThreadSlot slot = emptySlot();
    return slot;
}

} // namespace ORVTListview
