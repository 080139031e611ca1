#include <ORVTListview/EventSink.h>

namespace ORVTListview {

EventSink::~EventSink() = default;

} // namespace ORVTListview
