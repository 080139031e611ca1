#pragma once

#include "base/HouseExport.h"

#include <QtCore/QRect>

namespace ORVTListview {

struct Popup
{
    QSize wanted;
    int gap = 0; // to what it belongs to, in logical pixels
    bool isFromRight = false;
};

// Where a list goes that belongs to a word or a field: under it, over it where the screen
// ends, its left edge at the owner's, or its right one. Where there is room on neither side
// it is lower, on the side that has more. Never outside the screen.
ORVT_HOUSE_EXPORT QRect popupPlace(const QRect &owner, const Popup &popup, const QRect &screen);

} // namespace ORVTListview
