#pragma once

#include <ORVTListview/CoreExport.h>
#include <ORVTListview/HostObject.h>

#include <QtCore/QVariantList>

namespace ORVTListview {

// Gets a component's events by their published numbers. The host owns the sink and
// may destroy it at any time, while an event is delivered to it included.
class ORVT_CORE_EXPORT EventSink : public HostObject
{
public:
    ~EventSink() override;

    // Arguments are in the published order, from 0. What is put into one that the
    // event takes back (Cancel, NewString, KeyCode, ...) reaches the component and
    // whoever hears of the event later.
    virtual void Invoke(qint32 Number, QVariantList &Arguments) = 0;
};

} // namespace ORVTListview
