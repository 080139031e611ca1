#pragma once

#include <ORVTListview/Types.h>

#include <QtGui/QPalette>

namespace ORVTListview {

// The project's editor appearance, legible on the palette in use: a project whose
// background is the system's has its dark colours made light on a dark system.
RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings);

// Light text on dark grey, for a style that draws with the palette.
QPalette darkPalette();

} // namespace ORVTListview
