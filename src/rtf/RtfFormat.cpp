#include "rtf/RtfFormat.h"

namespace ORVTListview {

RtfSink::~RtfSink() = default;

} // namespace ORVTListview
