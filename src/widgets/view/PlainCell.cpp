#include "widgets/view/PlainCell.h"

#include "widgets/view/LetterGlyphs.h"

#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QTextLayout>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QWidget>

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <optional>

namespace ORVTListview {
namespace {

// How other styles draw a text, a style sheet's among them, nobody knows.
bool isCommon(const QStyle &style)
{
    static constexpr std::array names{"QFusionStyle", "QWindowsStyle"};
    return std::any_of(names.begin(), names.end(), [&style](const char *name) {
        return std::strcmp(style.metaObject()->className(), name) == 0;
    });
}

// At most a picture beside the text, which is not being edited or broken into lines.
bool isPlain(const QStyleOptionViewItem &cell)
{
    using Option = QStyleOptionViewItem;
    constexpr auto others = Option::HasCheckIndicator | Option::WrapText;
    return cell.showDecorationSelected && (cell.features & others) == 0 &&
           cell.features.testFlag(Option::HasDisplay) && !cell.text.isEmpty() &&
           !cell.state.testFlag(QStyle::State_Editing);
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &cell)
{
    if (!cell.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return cell.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

// A text on its one line. Kept, for else it is shaped again to be drawn.
QTextLine laidOut(QTextLayout &layout, const QStyleOptionViewItem &cell, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::ManualWrap);
    option.setTextDirection(cell.direction);
    option.setAlignment(QStyle::visualAlignment(cell.direction, cell.displayAlignment));
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(width);
    line.setPosition({});
    layout.endLayout();
    return line;
}

// What draws a line with its top left at a place.
using LineDrawer = std::function<void(const QPointF &)>;

void drawLine(QPainter &painter, const QStyleOptionViewItem &cell, const QRect &room, qreal height,
              const LineDrawer &draw)
{
    const bool isTall = height > cell.rect.height();
    if (isTall) {
        painter.save();
        painter.setClipRect(cell.rect);
    }
    const QSize size(room.width(), static_cast<int>(height));
    draw(QStyle::alignedRect(cell.direction, cell.displayAlignment, size, room).topLeft());
    if (isTall)
        painter.restore();
}

// Elided where there is not enough room.
std::optional<LetterGlyphs::Line> knownLine(const QStyleOptionViewItem &cell, int width,
                                            LetterGlyphs &letters)
{
    const std::optional<LetterGlyphs::Line> line = letters.lineOf(cell.text);
    if (!line || line->naturalWidth <= width)
        return line;
    const std::optional<QString> elided =
        cell.textElideMode == Qt::ElideRight ? letters.elidedText(cell.text, width) : std::nullopt;
    return elided ? letters.lineOf(*elided) : std::nullopt;
}

// What records or prints takes down texts, and has none of glyphs alone.
bool takesGlyphs(const QPainter &painter)
{
    return painter.paintEngine()->type() == QPaintEngine::Raster;
}

// Without shaping it, if it stands at a side.
bool drawKnown(QPainter &painter, const QStyleOptionViewItem &cell, const QRect &room,
               LetterGlyphs &letters)
{
    const bool isInside = (cell.displayAlignment & (Qt::AlignHCenter | Qt::AlignJustify)) != 0;
    if (isInside || cell.direction == Qt::RightToLeft || !takesGlyphs(painter))
        return false;
    const std::optional<LetterGlyphs::Line> line = knownLine(cell, room.width(), letters);
    if (!line)
        return false;
    const bool isRight = cell.displayAlignment.testFlag(Qt::AlignRight);
    const QPointF indent(isRight ? room.width() - line->advance : 0, 0);
    drawLine(painter, cell, room, line->height,
             [&](const QPointF &place) { painter.drawGlyphRun(place + indent, line->glyphs); });
    return true;
}

void drawShaped(QPainter &painter, const QStyleOptionViewItem &cell, const QRect &room,
                LetterGlyphs &letters)
{
    QTextLayout layout(cell.text, cell.font);
    QTextLine line = laidOut(layout, cell, room.width());
    letters.learn(cell.text, line);
    if (line.naturalTextWidth() > room.width()) {
        layout.setText(
            QFontMetrics(cell.font).elidedText(cell.text, cell.textElideMode, room.width()));
        line = laidOut(layout, cell, room.width());
        letters.learn(layout.text(), line);
    }
    drawLine(painter, cell, room, line.height(),
             [&](const QPointF &place) { layout.draw(&painter, place); });
}

bool hasPicture(const QStyleOptionViewItem &cell)
{
    return cell.features.testFlag(QStyleOptionViewItem::HasDecoration);
}

QStyleOptionViewItem withoutText(QStyleOptionViewItem cell)
{
    cell.features.setFlag(QStyleOptionViewItem::HasDisplay, false);
    cell.text.clear();
    return cell;
}

QRect textRoom(const QStyleOptionViewItem &cell, const QStyle &style)
{
    const int margin = style.pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, cell.widget) + 1;
    QRect room = cell.rect;
    if (hasPicture(cell)) {
        const QStyleOptionViewItem ground = withoutText(cell);
        room = style.subElementRect(QStyle::SE_ItemViewItemText, &ground, cell.widget);
    }
    return room.adjusted(margin, 0, -margin, 0);
}

bool isSelected(const QStyleOptionViewItem &cell)
{
    return cell.state.testFlag(QStyle::State_Selected);
}

// All but the text. To find that there is nothing to be drawn takes the styles a while.
void drawGround(QPainter &painter, const QStyleOptionViewItem &cell, const QStyle &style)
{
    const bool isBare = !isSelected(cell) && cell.backgroundBrush.style() == Qt::NoBrush;
    if (!hasPicture(cell) && isBare)
        return;
    if (!hasPicture(cell) && isSelected(cell)) {
        painter.fillRect(cell.rect, cell.palette.brush(groupOf(cell), QPalette::Highlight));
        return;
    }
    if (!hasPicture(cell)) {
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, &painter, cell.widget);
        return;
    }
    const QStyleOptionViewItem ground = withoutText(cell);
    style.drawControl(QStyle::CE_ItemViewItem, &ground, &painter, cell.widget);
}

} // namespace

void drawCell(QPainter &painter, const QStyleOptionViewItem &cell, LetterGlyphs &letters)
{
    const QStyle &style = *cell.widget->style();
    const bool isOurs = isPlain(cell) && isCommon(style);
    const QRect room = isOurs ? textRoom(cell, style) : QRect();
    if (room.width() <= 0) {
        style.drawControl(QStyle::CE_ItemViewItem, &cell, &painter, cell.widget);
        return;
    }
    drawGround(painter, cell, style);
    const QPen former = painter.pen();
    painter.setPen(cell.palette.color(groupOf(cell), isSelected(cell) ? QPalette::HighlightedText
                                                                      : QPalette::Text));
    letters.setFont(cell.font);
    if (!drawKnown(painter, cell, room, letters))
        drawShaped(painter, cell, room, letters);
    painter.setPen(former);
}

} // namespace ORVTListview
