#include "workbench/trend/TrendPainter.h"

#include "workbench/trend/TrendStyle.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr double margin = 6;
constexpr double laneGap = 10;
constexpr double headHeight = 1.1; // in lines: the unit over its strip
constexpr double statesHeight = 3; // of a strip of numbers, in strips of states
constexpr double leastPart = 1.5;  // of the latter, in lines
constexpr double markSize = 3.5;
constexpr double markDistance = 28; // at least, in pixels

// From the last one before a time on.
auto firstShown(const std::deque<TrendSample> &samples, qint64 begin)
{
    const auto first =
        std::lower_bound(samples.cbegin(), samples.cend(), begin,
                         [](const TrendSample &sample, qint64 when) { return sample.when < when; });
    return first == samples.cbegin() ? first : std::prev(first);
}

} // namespace

double TrendPainter::Lane::yOf(double value) const
{
    const double part = (value - scale.least) / (scale.most - scale.least);
    return place.bottom() - part * place.height();
}

QList<double> TrendPainter::Lane::ticks(double lineHeight) const
{
    if (isState)
        return {0, 1};
    return scale.ticks(std::max(1, static_cast<int>(place.height() / (lineHeight * 1.8))));
}

QStringList TrendPainter::Lane::labels(const QList<double> &ticks, const QLocale &locale) const
{
    return isState ? QStringList{u"Off"_s, u"On"_s} : TrendScale::labels(ticks, locale);
}

TrendPainter::TrendPainter(const QList<TrendLine> &lines, const QWidget &on, const QRectF &area,
                           qint64 begin, qint64 end)
    : m_lines(lines)
    , m_on(on)
    , m_plot(area.adjusted(margin, margin, -margin, -margin))
    , m_begin(begin)
    , m_end(end)
    , m_lanes(divided(lines))
{
    for (Lane &lane : m_lanes)
        scale(lane);
    m_plot.setBottom(m_plot.bottom() - lineHeight() * 1.2); // the times
    place(0);
    place(labelWidth());
}

double TrendPainter::lineHeight() const
{
    return m_on.fontMetrics().height();
}

QColor TrendPainter::faint(double part) const
{
    QColor colour = m_on.palette().color(QPalette::Text);
    colour.setAlphaF(static_cast<float>(part));
    return colour;
}

double TrendPainter::xOf(qint64 when) const
{
    const double part = static_cast<double>(when - m_begin) / static_cast<double>(m_end - m_begin);
    return m_plot.left() + part * m_plot.width();
}

qint64 TrendPainter::timeAt(double x) const
{
    const double part = std::clamp((x - m_plot.left()) / std::max(1.0, m_plot.width()), 0.0, 1.0);
    return m_begin + static_cast<qint64>(part * static_cast<double>(m_end - m_begin));
}

QList<TrendPainter::Lane> TrendPainter::divided(const QList<TrendLine> &lines)
{
    QList<Lane> lanes;
    for (qsizetype line = 0; line < lines.size(); ++line) {
        const TrendLine &each = lines.at(line);
        const auto same = std::find_if(lanes.begin(), lanes.end(), [&each](const Lane &lane) {
            return !lane.isState && !each.isState && lane.unit == each.unit;
        });
        if (same == lanes.end())
            lanes.append({each.isState ? each.name : each.unit, each.isState, {line}, {}, {}});
        else
            same->lines.append(line);
    }
    return lanes;
}

int TrendPainter::leastHeight(const QList<TrendLine> &lines, const QWidget &on)
{
    double parts = 1.2; // the times
    const QList<Lane> lanes = divided(lines);
    for (const Lane &lane : lanes)
        parts += headHeight + (lane.isState ? 1 : statesHeight) * leastPart;
    const auto gaps = static_cast<double>(lanes.size()) * laneGap + 2 * margin;
    return static_cast<int>(parts * on.fontMetrics().height() + gaps);
}

void TrendPainter::scale(Lane &lane) const
{
    if (lane.isState) {
        lane.scale = {-0.2, 1.2};
        return;
    }
    std::optional<TrendLine::Range> all;
    for (const qsizetype line : std::as_const(lane.lines)) {
        const auto range = m_lines.at(line).range(m_begin, m_end);
        if (range && all)
            all = {std::min(all->least, range->least), std::max(all->most, range->most)};
        else if (range)
            all = range;
    }
    lane.scale = all ? TrendScale::around(all->least, all->most) : TrendScale();
}

// A strip of numbers is as high as some of states.
void TrendPainter::place(double labelWidth)
{
    m_plot.setLeft(m_plot.left() + labelWidth);
    double parts = 0;
    for (const Lane &lane : m_lanes)
        parts += lane.isState ? 1 : statesHeight;
    const double head = lineHeight() * headHeight;
    const double gaps = static_cast<double>(m_lanes.size()) * (head + laneGap);
    const double part = std::max(1.0, (m_plot.height() - gaps) / std::max(1.0, parts));
    double top = m_plot.top();
    for (Lane &lane : m_lanes) {
        const double height = part * (lane.isState ? 1 : statesHeight);
        lane.place = QRectF(m_plot.left(), top + head, m_plot.width(), height);
        top += head + height + laneGap;
    }
}

double TrendPainter::labelWidth()
{
    double width = 0;
    for (const Lane &lane : m_lanes) {
        const QStringList labels = lane.labels(lane.ticks(lineHeight()), m_on.locale());
        for (const QString &label : labels)
            width = std::max<double>(width, m_on.fontMetrics().horizontalAdvance(label));
    }
    return width + margin;
}

void TrendPainter::paint(QPainter &painter) const
{
    paintTimes(painter);
    for (const Lane &lane : m_lanes)
        paintLane(painter, lane);
}

void TrendPainter::paintTimes(QPainter &painter) const
{
    const double width = m_on.fontMetrics().horizontalAdvance(u"00:00:00 "_s) * 1.4;
    const QList<qint64> ticks = timeTicks(m_begin, m_end, static_cast<int>(m_plot.width() / width));
    const qint64 step = ticks.size() > 1 ? ticks.at(1) - ticks.at(0) : m_end - m_begin;
    for (const qint64 tick : ticks) {
        const double x = xOf(tick);
        painter.setPen(faint(0.15));
        for (const Lane &lane : m_lanes)
            painter.drawLine(QPointF(x, lane.place.top()), QPointF(x, lane.place.bottom()));
        painter.setPen(faint(0.85));
        const double left = std::min(x - width / 2, m_on.width() - width); // none is cut
        const QRectF place(left, m_plot.bottom(), width, lineHeight() * 1.2);
        painter.drawText(place, Qt::AlignHCenter | Qt::AlignBottom,
                         timeLabel(tick, step, m_on.locale()));
    }
}

void TrendPainter::paintLane(QPainter &painter, const Lane &lane) const
{
    const QList<double> ticks = lane.ticks(lineHeight());
    const QStringList labels = lane.labels(ticks, m_on.locale());
    for (qsizetype i = 0; i < ticks.size(); ++i) {
        const double y = lane.yOf(ticks.at(i));
        painter.setPen(faint(0.15));
        painter.drawLine(QPointF(lane.place.left(), y), QPointF(lane.place.right(), y));
        painter.setPen(faint(0.85));
        painter.drawText(QRectF(0, y - lineHeight(), lane.place.left() - margin, 2 * lineHeight()),
                         Qt::AlignRight | Qt::AlignVCenter, labels.at(i));
    }
    const QRectF head(lane.place.left(), lane.place.top() - lineHeight() * headHeight,
                      lane.place.width(), lineHeight());
    painter.drawText(
        head, Qt::AlignLeft | Qt::AlignVCenter,
        m_on.fontMetrics().elidedText(lane.unit, Qt::ElideRight, static_cast<int>(head.width())));
    painter.setPen(faint(0.35));
    painter.drawRect(lane.place);
    for (const qsizetype line : lane.lines) {
        paintLine(painter, lane, line);
        paintMarks(painter, lane, line);
    }
}

// States change at once. A gap breaks the line.
void TrendPainter::paintLine(QPainter &painter, const Lane &lane, qsizetype line) const
{
    QPainterPath path;
    bool isOpen = false;
    const std::deque<TrendSample> &samples = m_lines.at(line).samples;
    for (auto place = firstShown(samples, m_begin); place != samples.cend() && place->when <= m_end;
         ++place) {
        const TrendSample &sample = *place;
        if (sample.isGap()) {
            isOpen = false;
            continue;
        }
        const QPointF point(xOf(sample.when), lane.yOf(sample.value));
        if (isOpen && lane.isState)
            path.lineTo(point.x(), path.currentPosition().y());
        if (isOpen)
            path.lineTo(point);
        else
            path.moveTo(point);
        isOpen = true;
    }
    painter.save();
    painter.setClipRect(lane.place.adjusted(0, -2, 0, 2));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(trendPen(line, m_on.palette()));
    painter.drawPath(path);
    painter.restore();
}

void TrendPainter::paintMarks(QPainter &painter, const Lane &lane, qsizetype line) const
{
    painter.save();
    painter.setClipRect(lane.place.adjusted(-markSize, -markSize, markSize, markSize));
    painter.setPen(trendPen(line, m_on.palette()));
    double last = -markDistance;
    const std::deque<TrendSample> &samples = m_lines.at(line).samples;
    for (auto place = firstShown(samples, m_begin); place != samples.cend() && place->when <= m_end;
         ++place) {
        const TrendSample &sample = *place;
        const double x = xOf(sample.when);
        if (sample.isGap() || x - last < markDistance)
            continue;
        drawTrendMark(painter, line, {x, lane.yOf(sample.value)}, markSize);
        last = x;
    }
    painter.restore();
}

} // namespace ORVTListview
