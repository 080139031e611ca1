#pragma once

#include "base/ColouredText.h"
#include "base/HouseExport.h"
#include "editor/rules/colouring/ColourEngine.h"

namespace ORVTListview {

// A line as it looks once it is finished while typing: every word has the colour
// that colouring the whole text would give it, and its listed letter case. Unlike
// there no blank, tab or bracket comes or goes, so the length stays the same.
ORVT_HOUSE_EXPORT ColouredText finishedLine(const ColourEngine &engine, QStringView line,
                                            const RichTextSettings &settings);

// The same for all lines of a text, which are separated by CR LF; AsTyped, without
// the listed letter case: the colours alone.
enum class Spelling { Listed, AsTyped };
ORVT_HOUSE_EXPORT ColouredText finishedText(const ColourEngine &engine, QStringView text,
                                            const RichTextSettings &settings,
                                            Spelling spelling = Spelling::Listed);

} // namespace ORVTListview
