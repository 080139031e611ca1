#include "editor/view/LiveValues.h"

#include "base/TextRules.h"
#include "editor/rules/structure/BlockWords.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/LineEnds.h"
#include "editor/view/ViewColours.h"
#include "widgets/look/CellText.h"

#include <QtCore/QSet>
#include <QtCore/QStringList>
#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QTextDocument>
#include <QtGui/QTextLayout>
#include <QtGui/QTextOption>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QScrollBar>

#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype mostLetters = 400; // of a line's values; no window is wider
constexpr auto gapOfValues = "   "_L1;
constexpr int fewestLetters = 4; // an ellipsis alone tells nothing

// What is cut in the midst of a name or of its value loses the value: as many as fit are shown
// whole. The first one is cut where there is room for its name and something of its value.
QString cutBehindValue(const QString &text, const QString &cut, const QFontMetricsF &metrics,
                       qreal room)
{
    const QString ellipsis = QString(gapOfValues) + u'…';
    qsizetype end = text.lastIndexOf(gapOfValues, std::max<qsizetype>(cut.size() - 1, 0));
    while (end > 0 && metrics.horizontalAdvance(text.left(end) + ellipsis) > room)
        end = text.lastIndexOf(gapOfValues, end - 1);
    if (end > 0)
        return text.left(end) + ellipsis;
    return cut.size() - 2 >= text.indexOf(u' ') + fewestLetters ? cut : QString();
}

// As the font's metrics do it, but of so many letters only as may be seen: to lay out all
// the values of a line takes long.
QString cutToFit(const QString &text, const QFontMetricsF &metrics, qreal room)
{
    auto letters = static_cast<qsizetype>(room / metrics.averageCharWidth()) + 2;
    while (letters < text.size() && metrics.horizontalAdvance(text.left(letters)) <= room)
        letters *= 2;
    const QString cut = metrics.elidedText(text.left(letters), Qt::ElideRight, room);
    return cutBehindValue(text, cut, metrics, room);
}

LiveValues::Values byFoldedName(const LiveValues::Values &given)
{
    LiveValues::Values values;
    values.reserve(given.size());
    for (auto value = given.cbegin(); value != given.cend(); ++value)
        values.insert(foldedCase(value.key()), shownText(beginningOf(value.value(), mostLetters)));
    return values;
}

} // namespace

LiveValues::LiveValues(QPlainTextEdit &box, BoxLayers &layers)
    : BoxLayer(layers, LayerOrder::liveValues)
    , m_box(box)
    , m_pause(new QTimer(&box))
{
    m_pause->setObjectName(u"LiveValuesPause"_s);
    m_pause->setSingleShot(true);
    m_pause->setTimerType(Qt::PreciseTimer);
    m_pause->setInterval(100ms);
    connect(m_pause, &QTimer::timeout, this, &LiveValues::take);
}

void LiveValues::setOn(bool on)
{
    if (on == isShown())
        return;
    setShown(on);
    if (!on) {
        clear();
        Q_EMIT changed();
        return;
    }
    connect(m_box.horizontalScrollBar(), &QScrollBar::valueChanged, this, &LiveValues::repaint);
    connect(m_box.document(), &QTextDocument::contentsChanged, this, &LiveValues::followChange);
    take();
}

void LiveValues::clear()
{
    m_pause->stop();
    m_box.horizontalScrollBar()->disconnect(this);
    m_box.document()->disconnect(this);
    m_laidOut.clear();
    m_values.clear();
    m_isTaken = m_given.isEmpty();
}

void LiveValues::set(const Values &values)
{
    m_given = values;
    m_isTaken = false;
    if (isShown() && !m_pause->isActive())
        take();
}

void LiveValues::take()
{
    if (std::exchange(m_isTaken, true))
        return;
    m_pause->start();
    Values former = std::exchange(m_values, byFoldedName(m_given));
    if (!layers())
        return;
    layers()->updateLines([&](const QTextBlock &line) {
        const QString now = textOn(line);
        m_values.swap(former);
        const QString before = textOn(line);
        m_values.swap(former);
        return now != before;
    });
    followChange();
    Q_EMIT changed();
}

// What is cut at the edge of the viewport is cut elsewhere once that is scrolled.
void LiveValues::repaint()
{
    m_box.viewport()->update();
}

// What is told to be painted again is the line, without what a value leaves beside it.
void LiveValues::followChange()
{
    if (m_reach > 0)
        repaint();
}

QString LiveValues::textOn(const QTextBlock &line) const
{
    if (m_values.isEmpty())
        return {};
    const Qt::LayoutDirection direction = line.textDirection();
    const QString text = line.text().left(longestLine);
    QString values;
    QSet<QString> told;
    for (const TextPiece &word : wordsOf(text)) {
        const QString name = text.sliced(word.start, word.length);
        const QString folded = foldedCase(name);
        const auto value = m_values.constFind(folded);
        if (value == m_values.cend() || told.contains(folded))
            continue;
        told.insert(folded);
        values += (values.isEmpty() ? QString() : QString(gapOfValues)) +
                  inOwnDirection(name, direction) + u' ' + inOwnDirection(*value, direction);
        if (values.size() > mostLetters)
            break;
    }
    return values;
}

// Up to the edge of the viewport.
QRectF LiveValues::roomBehind(const ShownLine &line) const
{
    const qreal letter = QFontMetricsF(layers()->shownFont(), &m_box).averageCharWidth();
    const TextEnd text = textEndOf(line);
    const TextEnd end =
        hidesLines(line.block) ? TextEnd{foldSignOf(text, letter), text.isOpenToTheLeft} : text;
    const qreal width = m_box.viewport()->width();
    const qreal free = end.isOpenToTheLeft ? end.text.left() : width - end.text.right();
    const QRectF room = placeBehind(end, 4 * letter, free - 5 * letter);
    const QRectF seen(0, room.top(), width, room.height());
    return room.width() < fewestLetters * letter || !seen.contains(room) ? QRectF() : room;
}

void LiveValues::paintAbove(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::groundOf(m_box);
    const QColor quiet = ViewColours::quietText(ViewColours::textOf(m_box), ground);
    const QFont font = layers()->shownFont();
    const QFontMetricsF metrics(font, &m_box);
    painter.setFont(font);
    painter.setPen(
        ViewColours::onGround(quiet, ViewColours::faintGround(ground), ViewColours::readable));
    for (const ShownLine &line : lines) {
        const QRectF room = roomBehind(line);
        const bool isSeen =
            room.left() - 1 < line.area.right() && room.right() + 1 > line.area.left();
        const QString values = room.isEmpty() || !isSeen ? QString() : textOn(line.block);
        if (values.isEmpty())
            continue;
        const QStaticText &shown = laidOut(values, line.block.textDirection(), font, room.width());
        const QTextLayout &layout = *line.block.layout();
        const qreal baseline = room.top() + layout.lineAt(layout.lineCount() - 1).ascent();
        const qreal left =
            textEndOf(line).isOpenToTheLeft ? room.right() - shown.size().width() : room.left();
        painter.drawStaticText(QPointF(left, baseline - metrics.ascent()), shown);
    }
}

// With what comes to stand beside its line other lines are to be painted, too.
void LiveValues::noteLetters(QStringView shown)
{
    const int reach = m_letters.reachBeyond(shown);
    if (reach <= m_reach)
        return;
    m_reach = reach;
    repaint();
}

// While one types on a line its values stay, and need not be laid out again.
const QStaticText &LiveValues::laidOut(const QString &values, Qt::LayoutDirection direction,
                                       const QFont &font, qreal room)
{
    constexpr qsizetype most = 500; // texts; more than lines are shown
    if (m_laidOut.size() >= most || !m_letters.areOf(font))
        m_laidOut.clear();
    if (!m_letters.areOf(font)) {
        m_letters.setFont(font, m_box);
        m_reach = 0;
    }
    const auto textFor = [&](const QString &shown) -> const QStaticText & {
        const auto key = std::pair(shown, direction);
        if (auto known = m_laidOut.constFind(key); known != m_laidOut.constEnd())
            return *known;
        noteLetters(shown);
        QStaticText text(shown);
        QTextOption option;
        option.setTextDirection(direction);
        option.setWrapMode(QTextOption::NoWrap);
        text.setTextOption(option);
        text.setTextFormat(Qt::PlainText);
        text.prepare({}, font);
        return *m_laidOut.insert(key, text);
    };
    const QStaticText &whole = textFor(values);
    if (whole.size().width() <= room)
        return whole;
    return textFor(cutToFit(values, QFontMetricsF(font, &m_box), room));
}

} // namespace ORVTListview
