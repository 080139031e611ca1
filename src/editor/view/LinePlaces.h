#pragma once

#include "base/TextPiece.h"
#include "widgets/box/BoxLayers.h"

namespace ORVTListview {

// Where a piece of a shown line stands in the viewport: one rectangle, or several where
// the line is broken by a separator or its text changes direction.
QList<QRectF> placesOf(const ShownLine &line, const TextPiece &piece);

} // namespace ORVTListview
