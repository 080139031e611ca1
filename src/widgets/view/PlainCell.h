#pragma once

class QPainter;
class QStyleOptionViewItem;

namespace ORVTListview {

class LetterGlyphs;

// Draws a cell as its style does, with the same pixels. The toolkit's own styles shape a text
// four times to draw it, which takes most of the time; here it is shaped once, or not at all
// when its letters are known.
void drawCell(QPainter &painter, const QStyleOptionViewItem &cell, LetterGlyphs &letters);

} // namespace ORVTListview
