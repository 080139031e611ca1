#pragma once

#include <ORVTListview/Error.h>
#include <ORVTListview/EventSink.h>
#include <ORVTListview/Export.h>
#include <ORVTListview/LateCall.h>
#include <ORVTListview/MemberTable.h>

#include <QtCore/QVariantList>
#include <QtWidgets/QWidget>

#include <memory>

namespace ORVTListview {

// What all components have in common: a table of their members, events by number
// and late-bound calls. Everything on the user-interface thread.
class ORVT_EXPORT Component : public QWidget
{
    Q_OBJECT

public:
    explicit Component(QWidget *parent = nullptr);
    ~Component() override;

    // Every property, method and event; the same table for all of a class.
    virtual const MemberTable &Members() const = 0;

    // Delivers every event to the sink, until Unadvise or until the host destroys
    // it. Sinks and receivers of the signals hear of an event in the order in which
    // they were advised and connected. A sink that is advised already keeps its
    // place; null does nothing. What a sink throws ends in the log.
    void Advise(EventSink *Sink);
    void Unadvise(EventSink *Sink);

    // Calls a method, reads a property (no argument) or sets it (one argument), by
    // name, in any letter case. Arguments are converted as QVariant converts, but a
    // number that does not fit is refused. Optional ones may be left out or empty;
    // those that go both ways or out come back in the list. Returns 0, a CallStatus
    // or the number of the error that the member raised; then neither Arguments nor
    // Result are changed.
    qint32 Invoke(const QString &Member, QVariantList &Arguments, QVariant &Result);

    // Number, source and description of what the last Invoke returned; number 0
    // when it went well.
    Error LastError() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
