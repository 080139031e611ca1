#pragma once

#include "base/HouseExport.h"

#include <QtCore/QRect>

namespace ORVTListview {

// Where a list of the wanted size goes that belongs to a word: under its line, over it
// where the screen ends, its left edge at the word's. Where there is room on neither
// side it is lower, on the side that has more. Never outside the screen.
ORVT_HOUSE_EXPORT QRect popupPlace(const QRect &word, const QSize &wanted, const QRect &screen);

} // namespace ORVTListview
