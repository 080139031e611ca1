#pragma once

class QPainter;
class QRectF;

namespace ORVTListview {

// A frame around letters of a line, as high as they are, with the painter's pen and brush.
// Nothing of its round corners comes to the lines beside it.
void drawRoundedMark(QPainter &painter, const QRectF &letters);

} // namespace ORVTListview
