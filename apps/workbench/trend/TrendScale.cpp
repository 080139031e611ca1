#include "workbench/trend/TrendScale.h"

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

#include <algorithm>
#include <array>
#include <cmath>

namespace ORVTListview {
namespace {

using namespace Qt::StringLiterals;

// The next of 1, 2, 5, 10, … for at most so many steps.
double roundStep(double span, int most)
{
    const double raw = span / std::max(1, most);
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (raw <= factor * power * (1 + 1e-9))
            return factor * power;
    }
    return 10 * power;
}

constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 day = 24 * hour;
constexpr std::array steps{second, 2 * second, 5 * second, 10 * second, 15 * second, 30 * second,
                           minute, 2 * minute, 5 * minute, 10 * minute, 15 * minute, 30 * minute,
                           hour,   2 * hour,   3 * hour,   6 * hour,    12 * hour,   day};

} // namespace

TrendScale TrendScale::around(double least, double most)
{
    const double span = most - least;
    const double room = span > 0 ? span * 0.08 : std::max(std::abs(most) * 0.05, 0.5);
    return {least - room, most + room};
}

QList<double> TrendScale::ticks(int count) const
{
    const double step = roundStep(most - least, count);
    QList<double> ticks;
    const double first = std::ceil(least / step - 1e-9);
    for (double i = first; i * step <= most + step * 1e-9 && ticks.size() <= count; ++i)
        ticks.append(i * step);
    return ticks;
}

QStringList TrendScale::labels(const QList<double> &ticks, const QLocale &locale)
{
    const double step = ticks.size() > 1 ? ticks.at(1) - ticks.at(0) : 1;
    const int places = std::clamp(-static_cast<int>(std::floor(std::log10(step) + 1e-9)), 0, 6);
    QStringList labels;
    for (const double tick : ticks)
        labels.append(locale.toString(tick == 0 ? 0.0 : tick, 'f', places));
    return labels;
}

QList<qint64> timeTicks(qint64 from, qint64 to, int most)
{
    const auto fits = [&](qint64 step) { return (to - from) / step <= std::max(1, most); };
    const auto *const found = std::find_if(steps.begin(), steps.end(), fits);
    const qint64 step =
        found == steps.end() ? steps.back() * ((to - from) / day / std::max(1, most) + 1) : *found;
    const qint64 offset = QDateTime::fromMSecsSinceEpoch(from).offsetFromUtc() * second;
    QList<qint64> ticks;
    for (qint64 tick = ((from + offset + step - 1) / step) * step - offset; tick <= to;
         tick += step)
        ticks.append(tick);
    return ticks;
}

QString timeLabel(qint64 when, qint64 step, const QLocale &locale)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(when);
    if (step >= day)
        return locale.toString(time.date(), QLocale::ShortFormat);
    QString format = locale.timeFormat(QLocale::ShortFormat);
    if (step < minute && !format.contains(u's'))
        format.replace(u"mm"_s, u"mm:ss"_s);
    return locale.toString(time.time(), format);
}

} // namespace ORVTListview
