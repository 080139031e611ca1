#pragma once

#include "widgets/look/Drawing.h"

#include <QtCore/QList>
#include <QtGui/QPainterPath>
#include <QtGui/QRgb>

namespace ORVTListview {

// A shape as it stands in the compiled drawings: colours (0: none), the line's width, and
// its outline, of which every act takes some of the numbers: M and L a place, C three
// places, Z none, E a rectangle round an ellipse, R a rectangle and the radius of its
// corners.
struct DrawnShape
{
    QRgb fill = 0;
    QRgb line = 0;
    float lineWidth = 1;
    Qt::FillRule rule = Qt::WindingFill;
    const char *acts = "";
    QList<float> numbers;
};

// A drawing of ours, made from its SVG file when the library is built: what runs needs no
// reader of SVG.
class PathDrawing final : public Drawing
{
public:
    PathDrawing(QSizeF size, const QList<DrawnShape> &shapes);

    QSizeF size() const override;
    void paint(QPainter *painter, const QRectF &area) const override;

private:
    struct Shape
    {
        QPainterPath outline;
        QRgb fill = 0;
        QRgb line = 0;
        qreal lineWidth = 1;
    };

    QSizeF m_size;
    QList<Shape> m_shapes;
};

} // namespace ORVTListview
