#include "base/ThreadSlot.h"

#include <new>

#include <windows.h>

namespace ORVTListview {
namespace {

void WINAPI removeSlot(void *slot)
{
    delete static_cast<ThreadSlot *>(slot);
}

} // namespace

// Not thread_local: of a thread that ends, MinGW's gives the memory back before it destroys
// what lies in it.
ThreadSlot &slotOfThread()
{
    static const DWORD number = FlsAlloc(&removeSlot);
    if (auto *known = static_cast<ThreadSlot *>(FlsGetValue(number)))
        return *known;
    auto made = std::make_unique<ThreadSlot>(emptySlot());
    if (!FlsSetValue(number, made.get()))
        throw std::bad_alloc();
    return *made.release();
}

} // namespace ORVTListview
