#include "workbench/trend/TrendView.h"

#include "project/ProjectTexts.h"
#include "workbench/trend/Trend.h"
#include "workbench/trend/TrendPainter.h"

#include <QtCore/QDateTime>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QStyleOptionFocusRect>
#include <QtWidgets/QStylePainter>

#include <algorithm>
#include <iterator>
#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 leastSpan = 10LL * 1000;
constexpr qint64 mostSpan = 7LL * 24 * 3600 * 1000;

} // namespace

TrendView::TrendView(const Trend &trend, QWidget *parent)
    : QWidget(parent)
    , m_trend(trend)
{
    setObjectName(u"TrendView"_s);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    connect(&trend, &Trend::linesChanged, this, &TrendView::follow);
    connect(&trend, &Trend::samplesChanged, this, &TrendView::follow);
}

QSize TrendView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 12};
}

QSize TrendView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 16, fontMetrics().height() * 5};
}

// What is shown ends with the last sample.
qint64 TrendView::end() const
{
    if (m_paused)
        return *m_paused;
    qint64 latest = 0;
    for (const TrendLine &line : m_trend.lines()) {
        if (!line.samples.empty())
            latest = std::max(latest, line.samples.back().when);
    }
    return latest > 0 ? latest : QDateTime::currentMSecsSinceEpoch();
}

void TrendView::setPaused(bool on)
{
    if (on == isPaused())
        return;
    m_paused = on ? std::optional(end()) : std::nullopt;
    update();
}

void TrendView::zoomIn()
{
    zoom(true);
}

void TrendView::zoomOut()
{
    zoom(false);
}

void TrendView::zoom(bool isIn)
{
    m_span = std::clamp(isIn ? m_span / 2 : m_span * 2, leastSpan, mostSpan);
    update();
}

void TrendView::follow()
{
    setAccessibleDescription(description());
    setMinimumHeight(TrendPainter::leastHeight(m_trend.lines(), *this)); // or it is scrolled
    update();
}

QString TrendView::description() const
{
    QStringList texts;
    for (const TrendLine &line : m_trend.lines()) {
        const auto range = line.range(std::numeric_limits<qint64>::min(), end());
        if (!range)
            texts.append(tr("%1: not read").arg(line.name));
        else
            texts.append(tr("%1: %2, from %3 to %4")
                             .arg(line.name, line.textOf(line.samples.back().value, locale()),
                                  line.textOf(range->least, locale()),
                                  line.textOf(range->most, locale())));
    }
    return texts.join(u"; "_s);
}

QStringList TrendView::readOut() const
{
    if (!m_cursor)
        return {};
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(*m_cursor);
    QStringList texts{timeLabel(*m_cursor, 1000, locale())};
    if (time.date() != QDate::currentDate())
        texts.first().prepend(locale().toString(time.date(), QLocale::ShortFormat) + u' ');
    for (const TrendLine &line : m_trend.lines()) {
        const TrendSample *sample = line.at(*m_cursor);
        const QString value = sample ? line.textOf(sample->value, locale()) : QString();
        texts.append(ProjectTexts::about(line.name, value.isEmpty() ? u"–"_s : value));
    }
    return texts;
}

// Painting.

TrendPainter TrendView::picture() const
{
    return {m_trend.lines(), *this, rect(), end() - m_span, end()};
}

void TrendView::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool isEmpty = std::all_of(m_trend.lines().cbegin(), m_trend.lines().cend(),
                                     [](const TrendLine &line) { return line.samples.empty(); });
    if (isEmpty) {
        paintHint(painter);
    } else {
        const TrendPainter drawn = picture();
        drawn.paint(painter);
        if (m_cursor)
            drawn.paintCursor(painter, *m_cursor, readOut());
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(1, 1, -1, -1);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
    }
}

void TrendView::paintHint(QPainter &painter) const
{
    const QString hint =
        m_trend.lines().isEmpty()
            ? tr("No point is drawn yet. Select rows of a table and choose Add To Trend.")
            : tr("Nothing has been read yet. Read Values reads once, Read Cyclically again and "
                 "again.");
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, hint);
}

// Keys and mouse.

void TrendView::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Plus)
        zoomIn();
    else if (key == Qt::Key_Minus)
        zoomOut();
    else if (key == Qt::Key_Escape && m_cursor)
        setCursorAt({});
    else if (!walk(key))
        QWidget::keyPressEvent(event);
}

bool TrendView::walk(int key)
{
    QList<qint64> times = m_trend.times();
    times.erase(std::upper_bound(times.begin(), times.end(), end()), times.end());
    const bool isWalk =
        key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Home || key == Qt::Key_End;
    if (!isWalk || times.isEmpty())
        return isWalk;
    const qint64 from = m_cursor.value_or(end() + 1);
    const auto next = std::upper_bound(times.cbegin(), times.cend(), from);
    const auto here = std::lower_bound(times.cbegin(), times.cend(), from);
    if (key == Qt::Key_Home)
        setCursorAt(times.first());
    else if (key == Qt::Key_Right && next != times.cend())
        setCursorAt(*next);
    else if (key == Qt::Key_Left && here != times.cbegin())
        setCursorAt(*std::prev(here));
    else if (key == Qt::Key_End)
        setCursorAt(times.last());
    while (m_cursor && end() - *m_cursor > m_span && m_span < mostSpan)
        zoomOut(); // so that it is seen
    return true;
}

void TrendView::setCursorAt(std::optional<qint64> when)
{
    if (m_cursor == when)
        return;
    m_cursor = when;
    update();
    if (!hasFocus())
        return; // it is the mouse
    setAccessibleDescription(m_cursor ? readOut().join(u"; "_s) : description());
    QAccessibleEvent told(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&told);
}

void TrendView::wheelEvent(QWheelEvent *event)
{
    const int turn = event->angleDelta().y();
    const bool isZoom = turn != 0 && event->modifiers().testFlag(Qt::ControlModifier);
    if (isZoom)
        zoom(turn > 0);
    event->setAccepted(isZoom); // otherwise it scrolls
}

void TrendView::mouseMoveEvent(QMouseEvent *event)
{
    setCursorAt(picture().timeAt(event->position().x()));
}

void TrendView::leaveEvent(QEvent *)
{
    setCursorAt({});
}

void TrendView::focusInEvent(QFocusEvent *event)
{
    setAccessibleDescription(description());
    QWidget::focusInEvent(event);
}

void TrendView::focusOutEvent(QFocusEvent *event)
{
    setCursorAt({});
    QWidget::focusOutEvent(event);
}

} // namespace ORVTListview
