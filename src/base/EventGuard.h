#pragma once

#include <QtCore/QtGlobal>

#include <exception>
#include <utility>

namespace ORVTListview::EventGuard {

// Runs what answers an event. What a receiver of our signals throws ends here, in
// the log, and the event counts as handled: nothing may reach the event loop.
template <typename Act>
bool run(Act &&act)
{
    try {
        return std::forward<Act>(act)();
    } catch (const std::exception &error) {
        qWarning("An event handler failed: %s", error.what());
    } catch (...) {
        qWarning("An event handler failed");
    }
    return true;
}

} // namespace ORVTListview::EventGuard
