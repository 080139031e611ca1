#include "widgets/box/BoxLayers.h"

#include <QtCore/QtMath>
#include <QtGui/QPainter>
#include <QtGui/QRegion>
#include <QtGui/QTextCharFormat>
#include <QtGui/QTextDocument>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {

BoxLayer::BoxLayer(BoxLayers &layers, int order)
    : m_layers(&layers)
    , m_order(order)
{
}

BoxLayer::~BoxLayer()
{
    setShown(false);
}

void BoxLayer::setShown(bool on)
{
    if (on == m_isShown)
        return;
    m_isShown = on;
    if (!m_layers)
        return;
    if (on)
        m_layers->add(*this);
    else
        m_layers->remove(*this);
}

void BoxLayer::paintBelow(QPainter &, const ShownLines &) {}

void BoxLayer::paintAbove(QPainter &, const ShownLines &) {}

void BoxLayer::paintMargin(QPainter &, const ShownLine &, const QRect &) {}

int BoxLayer::reachBeyond() const
{
    return 0;
}

BoxLayers::BoxLayers(QWidget &box, QWidget &viewport, const Reach &reach)
    : QObject(&box)
    , m_box(box)
    , m_viewport(viewport)
    , m_reach(reach)
{
}

BoxLayers &BoxLayers::of(const QWidget &box)
{
    return *box.findChild<BoxLayers *>({}, Qt::FindDirectChildrenOnly);
}

void BoxLayers::add(BoxLayer &layer)
{
    const auto place = std::find_if(m_layers.begin(), m_layers.end(), [&](const BoxLayer *other) {
        return other->order() > layer.order();
    });
    m_layers.insert(place, &layer);
    updateLines([](const QTextBlock &) { return true; });
}

void BoxLayers::remove(BoxLayer &layer)
{
    m_layers.removeOne(&layer);
    updateLines([](const QTextBlock &) { return true; });
}

ShownLines BoxLayers::shownLines() const
{
    return shownLines(0, m_viewport.height());
}

namespace {

// Hidden lines count as none, so they are stepped over at once.
QTextBlock nextShown(const QTextBlock &block)
{
    const QTextBlock next = block.next();
    return !next.isValid() || next.isVisible()
               ? next
               : block.document()->findBlockByLineNumber(next.firstLineNumber());
}

} // namespace

ShownLines BoxLayers::shownLines(int top, int bottom) const
{
    ShownLines lines;
    ShownLine line = m_reach.firstLine();
    while (line.block.isValid() && line.place.top() < bottom) {
        if (line.block.isVisible() && line.place.bottom() > top)
            lines.append(line);
        line.block = nextShown(line.block);
        const QRectF size = m_reach.sizeOf(line.block);
        line.place = QRectF(line.place.left(), line.place.bottom(), size.width(), size.height());
    }
    return lines;
}

int BoxLayers::layersReach() const
{
    int reach = 0;
    for (const BoxLayer *layer : m_layers)
        reach = std::max(reach, layer->reachBeyond());
    return reach;
}

// Not so, a line that is out of view need not be laid out.
bool BoxLayers::mayReachBeyond(const QTextBlock &line) const
{
    return line.isValid() && (layersReach() > 0 || m_reach.mayReachBeyond(line));
}

// The line above the first one shown, or below the last, where it may reach into the view.
ShownLine BoxLayers::lineAbove() const
{
    const ShownLine first = m_reach.firstLine();
    const int row = first.block.isValid() ? first.block.firstLineNumber() : 0;
    const QTextBlock above =
        row > 0 ? first.block.document()->findBlockByLineNumber(row - 1) : QTextBlock();
    if (!mayReachBeyond(above))
        return {};
    const QSizeF size = m_reach.sizeOf(above).size();
    return {above, QRectF(first.place.topLeft() - QPointF(0, size.height()), size), {}};
}

ShownLine BoxLayers::lineBelow(const ShownLine &last) const
{
    const QTextBlock below = nextShown(last.block);
    if (!mayReachBeyond(below))
        return {};
    return {below, QRectF(last.place.bottomLeft(), m_reach.sizeOf(below).size()), {}};
}

// No letter is higher than its row by more than another one.
ShownLines BoxLayers::linesAround(int top, int bottom) const
{
    const int row = qCeil(m_reach.firstLine().place.height());
    const int end = m_viewport.height();
    ShownLines lines = shownLines(top - row, std::min(bottom + row, end));
    if (const ShownLine above = top < row ? lineAbove() : ShownLine(); above.block.isValid())
        lines.prepend(above);
    const bool isAtEnd = bottom + row > end && !lines.isEmpty();
    if (const ShownLine below = isAtEnd ? lineBelow(lines.constLast()) : ShownLine();
        below.block.isValid())
        lines.append(below);
    return lines;
}

ShownLines BoxLayers::linesIn(const QRegion &region) const
{
    const QRect whole = region.boundingRect();
    const int reach = layersReach();
    ShownLines lines = linesAround(whole.top() - 1, whole.bottom() + 2);
    for (ShownLine &line : lines) {
        const QRect place = line.place.toAlignedRect();
        const int beyond = std::max(reach, m_reach.reachBeyond(line.block));
        const QRect row(whole.left(), place.top() - beyond, whole.width(),
                        place.height() + 2 * beyond);
        QRect area;
        for (const QRect &part : region)
            area |= part & row;
        line.area = area;
    }
    lines.removeIf([](const ShownLine &line) { return line.area.isEmpty(); });
    return lines;
}

void BoxLayers::setMargin(int width)
{
    if (width == m_margin)
        return;
    m_margin = width;
    m_reach.setMargins(m_margin, m_roomBelow);
}

void BoxLayers::setRoomBelow(int height)
{
    if (height == m_roomBelow)
        return;
    m_roomBelow = height;
    m_reach.setMargins(m_margin, m_roomBelow);
}

void BoxLayers::setZoom(int percent)
{
    if (percent == m_zoom)
        return;
    m_zoom = percent;
    m_reach.showIn(shownFont());
    Q_EMIT shownFontChanged();
}

QFont BoxLayers::shownFont() const
{
    QFont font = m_box.font();
    if (m_zoom != 100 && font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * m_zoom / 100);
    else if (m_zoom != 100)
        font.setPixelSize(std::max(1, font.pixelSize() * m_zoom / 100));
    return font;
}

void BoxLayers::setTextColours(const TextColours &colours)
{
    m_textColours = colours;
    m_viewport.update();
}

QColor BoxLayers::shownColour(const QTextCharFormat &format, const QColor &plain) const
{
    const auto colourOf = [&](int property) {
        return format.hasProperty(property) ? format.brushProperty(property).color() : QColor();
    };
    const QColor stated = colourOf(QTextFormat::ForegroundBrush);
    const QColor own = stated.isValid() ? stated : plain;
    return m_textColours ? m_textColours(own, colourOf(QTextFormat::BackgroundBrush)) : own;
}

void BoxLayers::wantLine(const QTextBlock &line)
{
    if (line.isValid() && !line.isVisible())
        Q_EMIT hiddenLineWanted(line);
}

// The toolkit has just shown the text in the box's own.
void BoxLayers::fitFont()
{
    if (m_zoom != 100)
        m_reach.showIn(shownFont());
    Q_EMIT shownFontChanged();
}

void BoxLayers::updateLines(const std::function<bool(const QTextBlock &block)> &concerns)
{
    for (const ShownLine &line : shownLines()) {
        if (!concerns(line.block))
            continue;
        const QRect place = line.place.toAlignedRect();
        m_viewport.update(0, place.top(), m_viewport.width(), place.height());
        Q_EMIT marginChanged(place.top(), place.bottom());
    }
}

void BoxLayers::paint(const QRegion &region, const ShownLines &lines, Paint how)
{
    if (m_layers.isEmpty())
        return;
    QPainter painter(&m_viewport);
    painter.setClipRegion(region);
    for (BoxLayer *layer : std::as_const(m_layers))
        (layer->*how)(painter, lines);
}

void BoxLayers::paintBelow(const QRegion &region, const ShownLines &lines)
{
    paint(region, lines, &BoxLayer::paintBelow);
}

void BoxLayers::paintAbove(const QRegion &region, const ShownLines &lines)
{
    paint(region, lines, &BoxLayer::paintAbove);
}

void BoxLayers::paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip)
{
    for (BoxLayer *layer : std::as_const(m_layers))
        layer->paintMargin(painter, line, strip);
}

} // namespace ORVTListview
