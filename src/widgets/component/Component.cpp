#include <ORVTListview/Component.h>

#include "members/EventDelivery.h"

#include <QtCore/QPointer>

#include <optional>

namespace ORVTListview {

struct Component::Private
{
    std::unique_ptr<EventDelivery> events; // made with the first sink
    std::optional<Error> lastError;
};

Component::Component(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
}

Component::~Component() = default;

void Component::Advise(EventSink *Sink)
{
    if (!d->events)
        d->events = std::make_unique<EventDelivery>(*this, Members());
    d->events->advise(Sink);
}

void Component::Unadvise(EventSink *Sink)
{
    if (d->events)
        d->events->unadvise(Sink);
}

qint32 Component::Invoke(const QString &Member, QVariantList &Arguments, QVariant &Result)
{
    const QPointer<Component> self(this); // the call may destroy it
    const std::optional<Error> error = callLate(*this, Members(), Member, Arguments, Result);
    if (self)
        d->lastError = error;
    return error ? error->Number() : CallSucceeded;
}

Error Component::LastError() const
{
    return d->lastError.value_or(Error(CallSucceeded, QString(), QString()));
}

} // namespace ORVTListview
