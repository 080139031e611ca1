#pragma once

#include <memory>

namespace ORVTListview {

class ThreadState;

// Where the calling thread keeps its state, which goes as the thread ends. Empty at first.
std::unique_ptr<ThreadState> &slotOfThread();

} // namespace ORVTListview
