#pragma once

#include "base/HouseExport.h"
#include "base/MessageService.h"
#include "editor/rules/colouring/ColourTable.h"

namespace ORVTListview {

// The head that precedes every coloured body.
struct RtfHead
{
    QString Header;
    bool FromSample = false;
};

// Takes font and paragraph settings from the RTF that the editor's box writes for
// the sample text, and the colours from the settings. A sample without a "#" on
// its second line gives a head of the library's own.
ORVT_HOUSE_EXPORT RtfHead BuildRtfHeader(const QString &SampleRtf, const RichTextSettings &Settings,
                                         MessageService &messages,
                                         const ColourSplitter &splitter = SplitColour);

} // namespace ORVTListview
