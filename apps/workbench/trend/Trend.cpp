#include "workbench/trend/Trend.h"

#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "project/controller/PointRows.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr double gap = std::numeric_limits<double>::quiet_NaN();

bool isState(const QVariant &value)
{
    const QString text = value.toString();
    return value.typeId() == QMetaType::QString && (text == u"On"_s || text == u"Off"_s);
}

// Other texts cannot be drawn.
double numberOf(const QVariant &value)
{
    if (isState(value))
        return value.toString() == u"On"_s ? 1 : 0;
    return value.typeId() == QMetaType::Double ? value.toDouble() : gap;
}

QString unitOf(LwType type, const ProjectRow &row)
{
    const QList<ProjectColumn> &columns = projectColumns(type);
    for (qsizetype column = 0; column < columns.size(); ++column) {
        if (columns.at(column).key == u"Units"_s)
            return row.cells.value(column).toString();
    }
    return {};
}

bool isBefore(qint64 when, const TrendSample &sample)
{
    return when < sample.when;
}

} // namespace

bool TrendSample::isGap() const
{
    return std::isnan(value);
}

const TrendSample *TrendLine::at(qint64 when) const
{
    const auto next = std::upper_bound(samples.cbegin(), samples.cend(), when, isBefore);
    return next == samples.cbegin() ? nullptr : &*std::prev(next);
}

std::optional<TrendLine::Range> TrendLine::range(qint64 from, qint64 to) const
{
    std::optional<Range> range;
    for (const TrendSample &sample : samples) {
        if (sample.isGap() || sample.when < from || sample.when > to)
            continue;
        range =
            range ? Range{std::min(range->least, sample.value), std::max(range->most, sample.value)}
                  : Range{sample.value, sample.value};
    }
    return range;
}

QString TrendLine::textOf(double value, const QLocale &locale) const
{
    if (std::isnan(value))
        return {};
    if (isState)
        return value > 0.5 ? u"On"_s : u"Off"_s;
    const QString number = locale.toString(value, 'f', QLocale::FloatingPointShortest);
    return unit.isEmpty() ? number : number + u' ' + unit;
}

Trend::Trend(ProjectDocument &document, PointReading &reading, QObject *parent)
    : QObject(parent)
    , m_document(document)
    , m_reading(reading)
{
    connect(&reading, &PointReading::valuesRead, this, &Trend::take);
    connect(&reading, &PointReading::ended, this, &Trend::takeGaps);
    connect(&reading, &PointReading::dropped, this, &Trend::removeAll);
    connect(&document, &ProjectDocument::tablesChanged, this, &Trend::follow);
}

bool Trend::add(LwType type, qsizetype row)
{
    const Project *project = m_document.project();
    if (!project || valueColumn(type) < 0 || row < 0 || row >= project->rows(type).size() ||
        m_lines.size() >= mostLines)
        return false;
    const ProjectRow &cells = project->rows(type).at(row);
    TrendLine line{PointRows::pointOf(type, row, cells), cells.name, unitOf(type, cells)};
    if (isDrawn(line.point))
        return false;
    if (line.name.isEmpty())
        line.name = u"%1 %2"_s.arg(Localise(displayName(type)), QString::number(row + 1));
    line.isState = isState(cells.cells.value(valueColumn(type)));
    line.row = row;
    line.rows = project->rows(type).size();
    m_lines.append(line);
    Q_EMIT linesChanged();
    return true;
}

bool Trend::add(const AskedPoint &point)
{
    return m_document.project() && add(point.type, PointRows(*m_document.project()).rowOf(point));
}

void Trend::remove(qsizetype line)
{
    m_lines.removeAt(line);
    Q_EMIT linesChanged();
}

void Trend::removeAll()
{
    m_lines.clear();
    Q_EMIT linesChanged();
}

void Trend::clear()
{
    for (TrendLine &line : m_lines)
        line.samples.clear();
    Q_EMIT samplesChanged();
}

QList<qint64> Trend::times() const
{
    QList<qint64> times;
    for (const TrendLine &line : m_lines) {
        for (const TrendSample &sample : line.samples)
            times.append(sample.when);
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

// A clock that was set back leaves no sample before another one.
void Trend::append(TrendLine &line, double value)
{
    const qint64 when = m_reading.when();
    if (!line.samples.empty() && when <= line.samples.back().when)
        return;
    if (line.samples.size() >= mostSamples)
        line.samples.pop_front();
    line.samples.push_back({when, value});
}

void Trend::take(const QList<AskedPoint> &points)
{
    for (TrendLine &line : m_lines) {
        if (!points.contains(line.point))
            continue;
        const QVariant value = m_reading.valueOf(line.point);
        if (line.samples.empty())
            line.isState = isState(value);
        append(line, isState(value) == line.isState ? numberOf(value) : gap);
    }
    Q_EMIT samplesChanged();
}

void Trend::takeGaps(const QList<AskedPoint> &missed)
{
    for (TrendLine &line : m_lines) {
        if (missed.contains(line.point))
            append(line, gap);
    }
    Q_EMIT samplesChanged();
}

bool Trend::isDrawn(const AskedPoint &point) const
{
    return std::any_of(m_lines.cbegin(), m_lines.cend(),
                       [&point](const TrendLine &line) { return line.point == point; });
}

// A point keeps its line when its row has another place, or the row another name.
void Trend::follow()
{
    PointRows rows(*m_document.project());
    for (TrendLine &line : m_lines) {
        const qsizetype row = rows.rowOf(line.point);
        const qsizetype count = m_document.project()->rows(line.point.type).size();
        const bool isRenamed = row < 0 && line.row >= 0 && count == line.rows;
        followRow(line, isRenamed ? line.row : row);
        line.rows = count;
    }
    Q_EMIT linesChanged();
}

void Trend::followRow(TrendLine &line, qsizetype row)
{
    line.row = row;
    if (row < 0)
        return;
    const ProjectRow &cells = m_document.project()->rows(line.point.type).at(row);
    line.unit = unitOf(line.point.type, cells);
    const AskedPoint point = PointRows::pointOf(line.point.type, row, cells);
    if (cells.name.isEmpty() || isDrawn(point))
        return;
    line.point = point;
    line.name = point.name;
}

} // namespace ORVTListview
