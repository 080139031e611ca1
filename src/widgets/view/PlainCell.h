#pragma once

class QPainter;
class QStyleOptionViewItem;

namespace ORVTListview {

// Draws a cell as its style does, with the same pixels. The toolkit's own styles shape a text
// four times to draw it, which takes most of the time; here it is shaped once.
void drawCell(QPainter &painter, const QStyleOptionViewItem &cell);

} // namespace ORVTListview
