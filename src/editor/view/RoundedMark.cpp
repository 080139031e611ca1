#include "editor/view/RoundedMark.h"

#include <QtGui/QPainter>

namespace ORVTListview {

void drawRoundedMark(QPainter &painter, const QRectF &letters)
{
    painter.save();
    painter.setClipRect(letters.adjusted(-2, 0, 2, 0), Qt::IntersectClip);
    painter.drawRoundedRect(letters.adjusted(-0.5, 0.5, 0.5, -0.5), 2, 2);
    painter.restore();
}

} // namespace ORVTListview
