#pragma once

#include "base/HouseExport.h"

#include <QtCore/QRectF>

namespace ORVTListview {

// Where the parts of the control lie, in twips from its corner.
struct TableLayout
{
    QRectF caption;
    QRectF captionText; // the part of the caption that button and picture leave free
    QRectF read;
    QRectF write;
    QRectF body; // the table or the editor

    friend bool operator==(const TableLayout &, const TableLayout &) = default;
};

// For a control of this inner size whose caption is as high as its font. Nothing
// has a negative size.
ORVT_HOUSE_EXPORT TableLayout layOutTable(double width, double height, double captionHeight);

} // namespace ORVTListview
