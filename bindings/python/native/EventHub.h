#pragma once

#include "native/Life.h"
#include "native/PythonObject.h"

#include <ORVTListview/EventSink.h>
#include <ORVTListview/MemberTable.h>

#include <QtCore/QSet>

// Hears of every event of one object and hands those that are asked for to Python. The
// object owns it.
class EventHub : public QObject, public ORVTListview::EventSink
{
public:
    // `receiver` is called with number and arguments; those that the event takes back are
    // references.
    EventHub(QObject &source, PyObject *receiver);
    ~EventHub() override;

    // Hands on the event of this number; without it none is.
    void want(qint32 number) { m_wanted.insert(number); }
    void wantAll() { m_wantsAll = true; }
    bool hearsAll() const { return m_wantsAll; }

    PyObject *receiver() const { return m_receiver; } // borrowed

    void Invoke(qint32 Number, QVariantList &Arguments) override;

private:
    using Event = ORVTListview::Member;

    const Event *eventOf(qint32 number) const;
    PyObject *handedOver(const Event &event, const QVariantList &arguments, const Life &life);
    static void bringBack(const Event &event, PyObject *kept, QVariantList &arguments);

    QObject &m_source;
    QList<Event> m_events;
    QSet<qint32> m_wanted;
    bool m_wantsAll = false;
    PyObject *m_receiver;
};
