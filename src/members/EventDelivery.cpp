#include "members/EventDelivery.h"

#include "members/SinkConnection.h"

#include <algorithm>

namespace ORVTListview {

EventDelivery::EventDelivery(QObject &component, const MemberTable &members)
    : m_component(component)
    , m_members(members)
{
}

EventDelivery::~EventDelivery() = default;

void EventDelivery::advise(EventSink *sink)
{
    // Those of sinks that hosts have destroyed.
    std::erase_if(m_connections, [](const auto &connection) { return !connection->sink(); });
    const auto leadsToSink = [sink](const auto &connection) { return connection->sink() == sink; };
    if (!sink || std::ranges::any_of(m_connections, leadsToSink))
        return;
    m_connections.push_back(std::make_unique<SinkConnection>(m_component, m_members, sink));
}

void EventDelivery::unadvise(EventSink *sink)
{
    std::erase_if(m_connections, [sink](const auto &connection) {
        return !connection->sink() || connection->sink() == sink;
    });
}

} // namespace ORVTListview
