#include <ORVTListview/LateCall.h>

#include "members/EventDelivery.h"

#include <QtCore/QObject>

#include <algorithm>

namespace ORVTListview {

namespace {

// Lives with the object whose events it delivers.
class ObjectEvents : public QObject
{
public:
    ObjectEvents(QObject &object, const MemberTable &members)
        : QObject(&object)
        , delivery(object, members)
    {
    }

    EventDelivery delivery;
};

ObjectEvents *eventsOf(const QObject &object)
{
    for (QObject *child : object.children()) {
        if (auto *const events = dynamic_cast<ObjectEvents *>(child))
            return events;
    }
    return nullptr;
}

bool raisesEvents(const MemberTable *members)
{
    const auto isEvent = [](const Member &member) { return member.kind == MemberKind::Event; };
    return members && std::ranges::any_of(members->members(), isEvent);
}

} // namespace

bool advise(const QVariant &object, EventSink *sink)
{
    auto *const source = object.value<QObject *>();
    const MemberTable *members = membersOf(object);
    if (!source || !raisesEvents(members))
        return false;
    ObjectEvents *events = eventsOf(*source);
    if (!events)
        events = new ObjectEvents(*source, *members);
    events->delivery.advise(sink);
    return true;
}

void unadvise(const QVariant &object, EventSink *sink)
{
    const auto *const source = object.value<QObject *>();
    if (ObjectEvents *const events = source ? eventsOf(*source) : nullptr)
        events->delivery.unadvise(sink);
}

} // namespace ORVTListview
