#include "editor/view/BlankMarks.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/LinePlaces.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QPainter>
#include <QtWidgets/QPlainTextEdit>

#include <algorithm>

namespace ORVTListview {
namespace {

void drawArrow(QPainter &painter, const QRectF &place, bool isLeftwards)
{
    const qreal head = std::min(3.0, place.width() / 2);
    const qreal middle = place.center().y();
    const qreal tip = isLeftwards ? place.left() + 2 : place.right() - 2;
    const qreal tail = isLeftwards ? place.right() - 2 : place.left() + 2;
    const qreal back = isLeftwards ? tip + head : tip - head;
    painter.drawLine(QPointF(tail, middle), QPointF(tip, middle));
    painter.drawLine(QPointF(back, middle - head), QPointF(tip, middle));
    painter.drawLine(QPointF(back, middle + head), QPointF(tip, middle));
}

} // namespace

BlankMarks::BlankMarks(QPlainTextEdit &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::blanks)
    , m_box(box)
{
}

void BlankMarks::paintAbove(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor colour = ViewColours::mixed(ground, ViewColours::textOf(m_box), 0.45);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1));
    painter.setBrush(colour);
    for (const ShownLine &line : lines)
        mark(painter, line);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

// What stands beside the viewport is passed over: a line may be long.
void BlankMarks::mark(QPainter &painter, const ShownLine &line) const
{
    const QString text = line.block.text();
    const QRectF shown(m_box.viewport()->rect());
    for (qint32 i = 0; i < text.size(); ++i) {
        if (text[i] != u' ' && text[i] != u'\t')
            continue;
        for (const QRectF &place : placesOf(line, {i, 1})) {
            if (!shown.intersects(place))
                continue;
            if (text[i] == u'\t')
                drawArrow(painter, place, m_box.isRightToLeft());
            else
                painter.drawEllipse(place.center(), 0.6, 0.6);
        }
    }
}

} // namespace ORVTListview
