#include "platform/EventSink.h"

namespace ORVTListview {

EventSink::~EventSink() = default;

} // namespace ORVTListview
