#pragma once

#include "base/HouseExport.h"
#include "rtf/RtfFormat.h"

namespace ORVTListview {

// True when the text counts as RTF: it begins with "{\rtf", in any letter case.
ORVT_HOUSE_EXPORT bool isRtf(QStringView text);

// Reads a document and hands its text to the sink, in time linear in its length.
// Any input gives a defined result: what is unknown is skipped, a broken
// document gives the text up to where it broke.
ORVT_HOUSE_EXPORT void readRtf(QStringView rtf, RtfSink &sink);

} // namespace ORVTListview
