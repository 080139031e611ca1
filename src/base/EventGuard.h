#pragma once

#include <QtCore/QPointer>
#include <QtCore/QtGlobal>

#include <exception>
#include <utility>

namespace ORVTListview::EventGuard {

// Runs what answers an event. What a receiver of our signals throws ends here, in
// the log, and the event counts as handled: nothing may reach the event loop. Who has
// to know whether something was thrown is told.
template <typename Act>
bool run(Act &&act, bool *hasFailed = nullptr)
{
    try {
        return std::forward<Act>(act)();
    } catch (const std::exception &error) {
        qWarning("An event handler failed: %s", error.what());
    } catch (...) {
        qWarning("An event handler failed");
    }
    if (hasFailed)
        *hasFailed = true;
    return true;
}

} // namespace ORVTListview::EventGuard

namespace ORVTListview {

// The one way in which an event leaves an object. What a receiver throws ends in the
// log, wherever the event comes from (no timer, screen reader or event filter bears
// it), and the object goes on as if the receiver had returned, unless it looks.
struct Raised
{
    bool isThere = true; // no receiver has destroyed the object
    bool hasFailed = false;
};

template <typename Raiser, typename... Parameters, typename... Values>
Raised raise(Raiser &raiser, void (Raiser::*event)(Parameters...), Values &&...values)
{
    const QPointer<Raiser> alive(&raiser);
    bool hasFailed = false;
    EventGuard::run(
        [&] {
            Q_EMIT(raiser.*event)(std::forward<Values>(values)...);
            return true;
        },
        &hasFailed);
    return {!alive.isNull(), hasFailed};
}

// The same for those who only ask whether the object is still there.
template <typename Raiser, typename... Parameters, typename... Values>
bool raiseEvent(Raiser &raiser, void (Raiser::*event)(Parameters...), Values &&...values)
{
    return raise(raiser, event, std::forward<Values>(values)...).isThere;
}

} // namespace ORVTListview
