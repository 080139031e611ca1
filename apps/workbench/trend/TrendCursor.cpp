#include "workbench/trend/TrendPainter.h"
#include "workbench/trend/TrendStyle.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {

namespace {

constexpr double room = 6;

} // namespace

void TrendPainter::paintCursor(QPainter &painter, qint64 when, const QStringList &readOut) const
{
    const double x = xOf(when);
    if (x < m_plot.left() || x > m_plot.right() || m_lanes.isEmpty())
        return;
    painter.setPen(QPen(faint(0.7), 1));
    painter.drawLine(QPointF(x, m_lanes.first().place.top()),
                     QPointF(x, m_lanes.last().place.bottom()));
    for (const Lane &lane : m_lanes) {
        for (const qsizetype line : lane.lines) {
            const TrendSample *sample = m_lines.at(line).at(when);
            if (!sample || sample->isGap() || sample->when < m_begin)
                continue;
            const double y = lane.yOf(sample->value);
            painter.setPen(QPen(faint(0.35), 1, Qt::DotLine));
            painter.drawLine(QPointF(lane.place.left(), y), QPointF(x, y));
            painter.setPen(trendPen(line, m_on.palette()));
            drawTrendMark(painter, line, {x, y}, 5);
        }
    }
    paintReadOut(painter, x, readOut);
}

// Beside the cursor, where there is more room.
void TrendPainter::paintReadOut(QPainter &painter, double x, const QStringList &readOut) const
{
    double width = 0;
    for (const QString &text : readOut)
        width = std::max<double>(width, m_on.fontMetrics().horizontalAdvance(text));
    const QSizeF size(width + 2 * room, static_cast<double>(readOut.size()) * lineHeight() + room);
    const bool isLeft = x > m_plot.center().x();
    const double left = isLeft ? x - 2 * room - size.width() : x + 2 * room;
    const QRectF box({std::max(m_plot.left(), left), m_plot.top() + lineHeight() * 1.5}, size);
    QColor ground = m_on.palette().color(QPalette::ToolTipBase);
    painter.setBrush(ground);
    painter.setPen(faint(0.4));
    painter.drawRoundedRect(box, 3, 3);
    painter.setPen(m_on.palette().color(QPalette::ToolTipText));
    for (qsizetype i = 0; i < readOut.size(); ++i)
        painter.drawText(QPointF(box.left() + room, box.top() + room / 2 +
                                                        static_cast<double>(i) * lineHeight() +
                                                        m_on.fontMetrics().ascent()),
                         readOut.at(i));
}

} // namespace ORVTListview
