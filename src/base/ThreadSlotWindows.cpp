#include "base/ThreadSlot.h"

#include "base/ThreadState.h"

#include <new>

#include <windows.h>

namespace ORVTListview {
namespace {

using Slot = std::unique_ptr<ThreadState>;

void WINAPI removeSlot(void *slot)
{
    delete static_cast<Slot *>(slot);
}

} // namespace

// Not thread_local: of a thread that ends, MinGW's gives the memory back before it destroys
// what lies in it.
std::unique_ptr<ThreadState> &slotOfThread()
{
    static const DWORD number = FlsAlloc(&removeSlot);
    if (auto *known = static_cast<Slot *>(FlsGetValue(number)))
        return *known;
    auto made = std::make_unique<Slot>();
    if (!FlsSetValue(number, made.get()))
        throw std::bad_alloc();
    return *made.release();
}

} // namespace ORVTListview
