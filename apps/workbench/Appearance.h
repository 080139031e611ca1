#pragma once

#include <ORVTListview/Types.h>

class QPalette;

namespace ORVTListview {

// The project's editor appearance, legible on the palette in use: a project whose
// background is the system's has its dark colours made light on a dark system.
RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings);

// The same colours, those of classes that differ on paper told apart by a shade that nobody
// sees, so that what is copied and printed can be told back.
RichTextSettings toldApart(RichTextSettings shown, const RichTextSettings &paper);

} // namespace ORVTListview
