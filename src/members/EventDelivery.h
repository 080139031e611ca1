#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/EventSink.h>
#include <ORVTListview/MemberTable.h>

#include <memory>
#include <vector>

namespace ORVTListview {

class SinkConnection;

// Delivers a component's events to sinks by their numbers. Sinks and receivers of
// the signals hear of an event in the order in which they were connected, and each
// sees what those before it made of the arguments. A receiver may do anything in
// between, destroying the component or its own sink included.
// Why it is so: docs/decisions/members.md.
class ORVT_HOUSE_EXPORT EventDelivery
{
public:
    // Component and table outlive the delivery.
    EventDelivery(QObject &component, const MemberTable &members);
    ~EventDelivery();
    Q_DISABLE_COPY_MOVE(EventDelivery) // connections lead here

    // A sink that is advised already keeps its place; null does nothing.
    void advise(EventSink *sink);

    // An event that is being delivered does not reach the sink any more. A sink
    // that is not advised is none.
    void unadvise(EventSink *sink);

private:
    QObject &m_component;
    const MemberTable &m_members;
    std::vector<std::unique_ptr<SinkConnection>> m_connections;
};

} // namespace ORVTListview
