#pragma once

#include "widgets/box/BoxLayers.h"

namespace ORVTListview {

// Where the text of a shown line's last row stands in the viewport, and on which side of
// it there is room: the right one, but for a row that is aligned to the right. Null while
// the line is not laid out.
struct TextEnd
{
    QRectF text;
    bool isOpenToTheLeft = false;
};
TextEnd textEndOf(const ShownLine &line);

// As high as the text, on its open side.
QRectF placeBehind(const TextEnd &end, qreal gap, qreal width);

// Whether the line stands for lines behind it that are folded.
bool hidesLines(const QTextBlock &line);

// Of the sign for that, behind the text. `letter` is the width of one.
QRectF foldSignOf(const TextEnd &end, qreal letter);

} // namespace ORVTListview
