#include "widgets/look/PathDrawing.h"

#include <QtGui/QPainter>

namespace ORVTListview {
namespace {

// Reads the numbers of a shape, act by act.
class Outline
{
public:
    explicit Outline(const DrawnShape &shape)
        : m_next(shape.numbers.cbegin())
    {
        m_path.setFillRule(shape.rule);
        for (const char *act = shape.acts; *act != 0; ++act)
            add(*act);
    }

    QPainterPath path() const { return m_path; }

private:
    void add(char act)
    {
        switch (act) {
        case 'M':
            return m_path.moveTo(place());
        case 'L':
            return m_path.lineTo(place());
        case 'C':
            return addCurve();
        case 'Z':
            return m_path.closeSubpath();
        case 'E':
            return m_path.addEllipse(rectangle());
        default:
            return addRounded();
        }
    }

    void addCurve()
    {
        const QPointF leaving = place();
        const QPointF arriving = place();
        m_path.cubicTo(leaving, arriving, place());
    }

    void addRounded()
    {
        const QRectF area = rectangle();
        const qreal radius = *m_next++;
        m_path.addRoundedRect(area, radius, radius);
    }

    QRectF rectangle()
    {
        const QPointF corner = place();
        const QPointF extent = place();
        return {corner, QSizeF(extent.x(), extent.y())};
    }

    QPointF place()
    {
        const qreal x = *m_next++;
        return {x, *m_next++};
    }

    QList<float>::const_iterator m_next;
    QPainterPath m_path;
};

QBrush brushOf(QRgb colour)
{
    return colour == 0 ? QBrush(Qt::NoBrush) : QBrush(QColor::fromRgba(colour));
}

QPen penOf(QRgb colour, qreal width)
{
    if (colour == 0)
        return {Qt::NoPen};
    return {QColor::fromRgba(colour), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

PathDrawing::PathDrawing(QSizeF size, const QList<DrawnShape> &shapes)
    : m_size(size)
{
    m_shapes.reserve(shapes.size());
    for (const DrawnShape &shape : shapes)
        m_shapes.append({Outline(shape).path(), shape.fill, shape.line, shape.lineWidth});
}

QSizeF PathDrawing::size() const
{
    return m_size;
}

void PathDrawing::paint(QPainter *painter, const QRectF &area) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(area.topLeft());
    painter->scale(area.width() / m_size.width(), area.height() / m_size.height());
    for (const Shape &shape : m_shapes) {
        painter->setBrush(brushOf(shape.fill));
        painter->setPen(penOf(shape.line, shape.lineWidth));
        painter->drawPath(shape.outline);
    }
    painter->restore();
}

} // namespace ORVTListview
