#include "workbench/trend/TrendStyle.h"

#include "widgets/look/Luminance.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmap>
#include <QtGui/QPolygonF>
#include <QtWidgets/QWidget>

#include <array>

namespace ORVTListview {
namespace {

// Each at least 4.5 to 1 on white, and on the dark ground of the workbench.
constexpr std::array<QRgb, 8> onLight{0x0060d0, 0xb03a00, 0x00704f, 0x99208a,
                                      0x7a5600, 0x006a80, 0xb3123f, 0x4d4d4d};
constexpr std::array<QRgb, 8> onDark{0x6cb6ff, 0xff9d5c, 0x5ad1a8, 0xf29ad0,
                                     0xe6c84c, 0x5fd4e8, 0xff8b9a, 0xc8c8c8};
constexpr std::array dashes{Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                            Qt::DashDotDotLine};
constexpr int marks = 4;

QPolygonF polygon(qsizetype mark, QPointF at, double r)
{
    switch (mark) {
    case 1: // square
        return QPolygonF(QRectF(at.x() - r, at.y() - r, 2 * r, 2 * r));
    case 2: // triangle
        return QPolygonF(
            {at + QPointF(0, -1.3 * r), at + QPointF(1.2 * r, r), at + QPointF(-1.2 * r, r)});
    default: // diamond
        return QPolygonF({at + QPointF(0, -1.4 * r), at + QPointF(1.4 * r, 0),
                          at + QPointF(0, 1.4 * r), at + QPointF(-1.4 * r, 0)});
    }
}

} // namespace

QPen trendPen(qsizetype line, const QPalette &palette)
{
    const auto &colours = isDark(palette.color(QPalette::Base)) ? onDark : onLight;
    const auto number = static_cast<std::size_t>(line);
    QPen pen(QColor(colours.at(number % colours.size())), 2);
    pen.setStyle(dashes.at(number % dashes.size()));
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

void drawTrendMark(QPainter &painter, qsizetype line, QPointF at, double size)
{
    painter.save();
    painter.setBrush(painter.pen().color());
    painter.setPen(Qt::NoPen);
    if (line % marks == 0)
        painter.drawEllipse(at, size, size);
    else
        painter.drawPolygon(polygon(line % marks, at, size));
    painter.restore();
}

QIcon trendSample(qsizetype line, const QWidget &on)
{
    const int height = on.fontMetrics().height();
    const QSize size(height * 5 / 2, height);
    const double ratio = on.devicePixelRatioF();
    QPixmap picture(size * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(trendPen(line, on.palette()));
    const double middle = size.height() / 2.0;
    painter.drawLine(QPointF(0, middle), QPointF(size.width(), middle));
    drawTrendMark(painter, line, {size.width() / 2.0, middle}, 4);
    return picture;
}

} // namespace ORVTListview
