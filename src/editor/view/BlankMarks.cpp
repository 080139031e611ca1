#include "editor/view/LayerOrder.h"
#include "editor/view/LineLayer.h"
#include "editor/view/ViewColours.h"
#include "widgets/box/LinePlaces.h"

#include <QtGui/QPainter>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>
#include <cmath>

namespace ORVTListview {
namespace {

void drawArrow(QPainter &painter, const QRectF &place, bool isLeftwards)
{
    const qreal head = std::min(3.0, place.width() / 2);
    const qreal middle = place.center().y();
    const qreal tip = isLeftwards ? place.left() + 2 : place.right() - 2;
    const qreal tail = isLeftwards ? place.right() - 2 : place.left() + 2;
    const qreal back = isLeftwards ? tip + head : tip - head;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(QPointF(tail, middle), QPointF(tip, middle));
    painter.drawLine(QPointF(back, middle - head), QPointF(tip, middle));
    painter.drawLine(QPointF(back, middle + head), QPointF(tip, middle));
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// Of whole pixels, whatever their size.
void drawDot(QPainter &painter, const QPointF &middle, qreal ratio, const QColor &colour)
{
    const qreal side = std::round(2 * ratio) / ratio;
    const auto onPixel = [ratio](qreal place) { return std::round(place * ratio) / ratio; };
    painter.fillRect(
        QRectF(onPixel(middle.x() - side / 2), onPixel(middle.y() - side / 2), side, side), colour);
}

// What stands beside the viewport is passed over: a line may be long.
void mark(QPainter &painter, const ShownLine &line, const QPlainTextEdit &box, const QColor &colour)
{
    const QString text = line.block.text();
    const qreal ratio = painter.device()->devicePixelRatioF();
    const LinePlaces places(line);
    for (const RowSides &sides : places.rows()) {
        const QTextLine &row = sides.row();
        const int end = std::min(row.textStart() + row.textLength(), static_cast<int>(text.size()));
        for (int i = row.textStart(); i < end; ++i) {
            if (text[i] != u' ' && text[i] != u'\t')
                continue;
            const QRectF place = places.between(sides, i, i + 1);
            if (!line.area.intersects(place))
                continue;
            if (text[i] == u'\t')
                drawArrow(painter, place, box.isRightToLeft());
            else
                drawDot(painter, place.center(), ratio, colour);
        }
    }
}

void paint(QPainter &painter, const ShownLines &lines, const QPlainTextEdit &box)
{
    const QColor ground = ViewColours::groundOf(box);
    const QColor colour = ViewColours::mixed(ground, ViewColours::textOf(box), 0.45);
    painter.setPen(QPen(colour, 1));
    for (const ShownLine &line : lines)
        mark(painter, line, box, colour);
}

} // namespace

LineLayer::Look LineLayer::blankMarks()
{
    return {.order = LayerOrder::blanks, .above = paint};
}

} // namespace ORVTListview
