#pragma once

#include <QtCore/QPointF>
#include <QtGui/QIcon>
#include <QtGui/QPen>

class QPainter;
class QPalette;
class QWidget;

namespace ORVTListview {

// How the line with a number, from 0, is drawn: each has a colour for a light and a dark
// ground, a dash and a mark, so that it is told from others without its colour, too.
QPen trendPen(qsizetype line, const QPalette &palette);
void drawTrendMark(QPainter &painter, qsizetype line, QPointF at, double size);

// A piece of it, as a legend shows it on this widget.
QIcon trendSample(qsizetype line, const QWidget &on);

} // namespace ORVTListview
