#pragma once

#include <QtCore/QList>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace ORVTListview {

// A range of values with room at both ends, never empty.
struct TrendScale
{
    double least = 0;
    double most = 1;

    // That shows all from one to the other.
    static TrendScale around(double least, double most);

    // Round numbers within it, at most so many.
    QList<double> ticks(int count) const;

    // As an axis shows them: all with the same number of places.
    static QStringList labels(const QList<double> &ticks, const QLocale &locale);
};

// Round times of day from one to another, in milliseconds since 1970, at most so many.
QList<qint64> timeTicks(qint64 from, qint64 to, int most);

// A time as an axis with such steps shows it, in local time.
QString timeLabel(qint64 when, qint64 step, const QLocale &locale);

} // namespace ORVTListview
