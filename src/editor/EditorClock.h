#pragma once

#include <chrono>
#include <functional>

namespace ORVTListview {

// What tells the editors of a thread how long a text has stood. Tests give their own.
struct EditorClock
{
    using Time = std::chrono::steady_clock::time_point;

    std::function<Time()> now = std::chrono::steady_clock::now;
};

} // namespace ORVTListview
