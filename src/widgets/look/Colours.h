#pragma once

#include <ORVTListview/Colour.h>
#include <ORVTListview/Export.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace ORVTListview {

// The published form of a colour, and the toolkit's.
namespace Colours {

constexpr Colour windowBackground = static_cast<qint32>(0x80000005U);
constexpr Colour windowText = static_cast<qint32>(0x80000008U);

// System colours are looked up in the palette; an unknown number is the palette's
// text colour. Bits 24 to 30 of other values are ignored.
ORVT_EXPORT QColor toColor(Colour colour, const QPalette &palette);

// Never negative. Transparency is dropped.
ORVT_EXPORT Colour fromColor(const QColor &colour);

// What the palette pairs with a background: the text colour that belongs to a
// system colour, else black or white, whichever stands out more.
ORVT_EXPORT QColor textOn(Colour background, const QPalette &palette);

} // namespace Colours
} // namespace ORVTListview
