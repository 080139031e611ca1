#pragma once

#include <memory>

namespace ORVTListview {

using ThreadSlot = std::unique_ptr<void, void (*)(void *)>;

// Where the calling thread keeps what goes as it ends. Empty at first.
ThreadSlot &slotOfThread();

// Of a thread that has kept nothing yet.
inline ThreadSlot emptySlot()
{
    return {nullptr, [](void *) {}};
}

} // namespace ORVTListview
