#pragma once

#include <ORVTListview/EventSink.h>
#include <ORVTListview/MemberTable.h>

#include <QtCore/QObject>

namespace ORVTListview {

// Connects all events of a component to one sink. Each event has a slot of its own
// that no meta-object knows: what the signal carries comes as it was raised, as
// pointers to the raiser's variables, so that it can be changed.
class SinkConnection : public QObject
{
public:
    SinkConnection(QObject &component, const MemberTable &members, EventSink *sink);

    EventSink *sink() const { return m_sink.get(); }

    int qt_metacall(QMetaObject::Call call, int id, void **values) override;

private:
    QList<Member> m_events; // by slot
    HostReference<EventSink> m_sink;
};

} // namespace ORVTListview
