#include "workbench/trend/TrendExport.h"

#include "workbench/trend/Trend.h"

#include <QtCore/QDateTime>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

QString valueAt(const TrendLine &line, qint64 when)
{
    const TrendSample *sample = line.at(when);
    if (!sample || sample->when != when || sample->isGap())
        return {};
    return line.isState ? line.textOf(sample->value, QLocale::c())
                        : QString::number(sample->value, 'f', QLocale::FloatingPointShortest);
}

} // namespace

CellBlock trendCells(const Trend &trend, const QString &timeTitle)
{
    CellBlock cells{{timeTitle}};
    for (const TrendLine &line : trend.lines()) {
        const bool hasUnit = !line.unit.isEmpty() && !line.isState;
        cells.first().append(hasUnit ? u"%1 [%2]"_s.arg(line.name, line.unit) : line.name);
    }
    const QList<qint64> times = trend.times();
    for (const qint64 when : times) {
        QStringList row{
            QDateTime::fromMSecsSinceEpoch(when).toString(u"yyyy-MM-dd HH:mm:ss.zzz"_s)};
        for (const TrendLine &line : trend.lines())
            row.append(valueAt(line, when));
        cells.append(row);
    }
    return cells;
}

} // namespace ORVTListview
