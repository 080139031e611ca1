#pragma once

#include <ORVTListview/Export.h>

#include <QtGui/QColor>
#include <QtGui/QPalette>

namespace ORVTListview {

// The published form of a colour: 0x00BBGGRR, red in the low byte. A negative
// value is a system colour: 0x80000000 plus its number.
namespace Colours {

constexpr qint32 windowBackground = static_cast<qint32>(0x80000005U);
constexpr qint32 windowText = static_cast<qint32>(0x80000008U);

// System colours are looked up in the palette; an unknown number is the palette's
// text colour. Bits 24 to 30 of other values are ignored.
ORVT_EXPORT QColor toColor(qint32 colour, const QPalette &palette);

// Never negative. Transparency is dropped.
ORVT_EXPORT qint32 fromColor(const QColor &colour);

// What the palette pairs with a background: the text colour that belongs to a
// system colour, else black or white, whichever stands out more.
ORVT_EXPORT QColor textOn(qint32 background, const QPalette &palette);

} // namespace Colours
} // namespace ORVTListview
