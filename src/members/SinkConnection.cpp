#include "members/SinkConnection.h"

#include "base/EventGuard.h"
#include "members/ArgumentValue.h"

namespace ORVTListview {

namespace {

// values[0] is the signal's result, which it has none of.
QVariantList raisedArguments(const Member &event, void **values)
{
    QVariantList arguments;
    arguments.reserve(event.arguments.size());
    for (const MemberArgument &argument : event.arguments)
        arguments.append(ArgumentValue::fromVariable(argument.type, *++values));
    return arguments;
}

// What the sink made unfit for an argument leaves that one as it was.
void bringBack(const Member &event, const QVariantList &arguments, void **values)
{
    const qsizetype count = qMin(arguments.size(), event.arguments.size());
    for (qsizetype i = 0; i < count; ++i) {
        const MemberArgument &argument = event.arguments.at(i);
        if (argument.direction == ArgumentDirection::In)
            continue;
        const auto value = ArgumentValue::converted(arguments.at(i), argument.type);
        if (!value)
            continue;
        argument.type.destruct(values[i + 1]);
        argument.type.construct(values[i + 1], value->constData());
    }
}

// The connection may be gone when the sink returns: nothing here is a part of it.
void deliver(EventSink &sink, const Member &event, void **values)
{
    QVariantList arguments = raisedArguments(event, values);
    EventGuard::run([&] {
        sink.Invoke(event.number, arguments);
        return true;
    });
    bringBack(event, arguments, values);
}

} // namespace

SinkConnection::SinkConnection(QObject &component, const MemberTable &members, EventSink *sink)
    : m_sink(sink)
{
    for (const Member &member : members.members()) {
        if (member.kind != MemberKind::Event)
            continue;
        const int slot =
            QObject::staticMetaObject.methodCount() + static_cast<int>(m_events.size());
        m_events.append(member);
        QMetaObject::connect(&component, member.signalIndex, this, slot, Qt::DirectConnection);
    }
}

int SinkConnection::qt_metacall(QMetaObject::Call call, int id, void **values)
{
    id = QObject::qt_metacall(call, id, values);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod || id >= m_events.size())
        return id;
    if (EventSink *const sink = m_sink.get()) {
        const Member event = m_events.at(id);
        deliver(*sink, event, values);
    }
    return -1;
}

} // namespace ORVTListview
