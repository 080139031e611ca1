#pragma once

#include <ORVTListview/Types.h>

class QPalette;

namespace ORVTListview {

// The project's editor appearance, legible on the palette in use: a project whose
// background is the system's has its dark colours made light on a dark system.
RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings);

} // namespace ORVTListview
