#pragma once

class QPainter;
class QStyleOptionViewItem;

namespace ORVTListview {

// Draws a cell as its style does, with the same pixels. The toolkit's own styles shape a text
// four times to draw it; one that stands alone in its cell is shaped once here.
void drawCell(QPainter &painter, const QStyleOptionViewItem &cell);

} // namespace ORVTListview
