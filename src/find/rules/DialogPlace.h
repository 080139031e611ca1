#pragma once

#include "base/HouseExport.h"

#include <QtCore/QRect>

namespace ORVTListview {

// Where a dialog goes that is to stay on a screen and off a place that is to be
// seen: as near as possible to where it stands, there if it is right already. On a
// screen too small for both, what covers the least of the place.
ORVT_HOUSE_EXPORT QRect dialogPlace(const QRect &dialog, const QRect &seen, const QRect &screen);

} // namespace ORVTListview
