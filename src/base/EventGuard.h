#pragma once

#include <QtCore/QPointer>
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

namespace ORVTListview {

// The one way in which an event leaves an object. What a receiver throws ends in the
// log, wherever the event comes from (no timer, screen reader or event filter bears
// it), and the object goes on as if the receiver had returned. False when a receiver
// has destroyed the object.
template <typename Raiser, typename... Parameters, typename... Values>
bool raiseEvent(Raiser &raiser, void (Raiser::*event)(Parameters...), Values &&...values)
{
    const QPointer<Raiser> alive(&raiser);
    EventGuard::run([&] {
        Q_EMIT(raiser.*event)(std::forward<Values>(values)...);
        return true;
    });
    return !alive.isNull();
}

} // namespace ORVTListview
