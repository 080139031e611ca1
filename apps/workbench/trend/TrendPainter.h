#pragma once

#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendScale.h"

#include <QtCore/QRectF>
#include <QtGui/QColor>

class QPainter;
class QWidget;

namespace ORVTListview {

// One picture of a trend: below each other a strip for each unit and for each line of On and
// Off, all on one axis of time.
class TrendPainter
{
public:
    // Fonts, colours and locale are the widget's; both outlive it. Times in milliseconds.
    TrendPainter(const QList<TrendLine> &lines, const QWidget &on, const QRectF &area, qint64 begin,
                 qint64 end);

    void paint(QPainter &painter) const;

    // A line at a time, and beside it what was read.
    void paintCursor(QPainter &painter, qint64 when, const QStringList &readOut) const;

    // That it takes to be read.
    static int leastHeight(const QList<TrendLine> &lines, const QWidget &on);

    double xOf(qint64 when) const;
    qint64 timeAt(double x) const; // the nearest one that is shown

private:
    struct Lane
    {
        QString unit;
        bool isState = false;
        QList<qsizetype> lines;
        TrendScale scale;
        QRectF place;

        double yOf(double value) const;
        QList<double> ticks(double lineHeight) const;
        QStringList labels(const QList<double> &ticks, const QLocale &locale) const;
    };

    static QList<Lane> divided(const QList<TrendLine> &lines);
    void scale(Lane &lane) const;
    void place(double labelWidth);
    double labelWidth();
    void paintLane(QPainter &painter, const Lane &lane) const;
    void paintTimes(QPainter &painter) const;
    void paintLine(QPainter &painter, const Lane &lane, qsizetype line) const;
    void paintMarks(QPainter &painter, const Lane &lane, qsizetype line) const;
    void paintReadOut(QPainter &painter, double x, const QStringList &readOut) const;
    QColor faint(double part) const;
    double lineHeight() const;

    const QList<TrendLine> &m_lines;
    const QWidget &m_on;
    QRectF m_plot;
    qint64 m_begin;
    qint64 m_end;
    QList<Lane> m_lanes;
};

} // namespace ORVTListview
