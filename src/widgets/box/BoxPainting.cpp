#include "widgets/box/BoxPainting.h"

#include <QtGui/QPainter>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextLayout>

namespace ORVTListview {
namespace {

QColor colourOf(const QTextCharFormat &format, int property)
{
    return format.hasProperty(property) ? format.brushProperty(property).color() : QColor();
}

QTextLayout::FormatRange coloured(int start, int length, const QColor &colour)
{
    QTextLayout::FormatRange range;
    range.start = start;
    range.length = length;
    range.format.setForeground(colour);
    return range;
}

// What an input method composes is in the layout, but not in the text.
void makeRoom(QTextLayout::FormatRange &range, const QTextLayout &layout)
{
    const int length = static_cast<int>(layout.preeditAreaText().size());
    const int place = layout.preeditAreaPosition();
    if (length == 0)
        return;
    if (range.start >= place)
        range.start += length;
    else if (range.start + range.length > place)
        range.length += length;
}

} // namespace

void BoxPainting::addColours(const QTextBlock &block, Ranges &ranges) const
{
    int start = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const int length = fragment.length();
        const QTextCharFormat format = fragment.charFormat();
        const QColor colour = colourOf(format, QTextFormat::ForegroundBrush);
        const QColor ground = colourOf(format, QTextFormat::BackgroundBrush);
        const QColor own = colour.isValid() ? colour : context.palette.text().color();
        const bool isPlain = !colour.isValid() && !ground.isValid(); // the painter has its colour
        const QColor shown = isPlain ? own : colours(own, ground);
        const bool isOther = shown != own;
        const bool goesOn = isOther && !ranges.isEmpty() &&
                            ranges.last().start + ranges.last().length == start &&
                            ranges.last().format.foreground().color() == shown;
        if (goesOn)
            ranges.last().length += length;
        else if (isOther)
            ranges.append(coloured(start, length, shown));
        start += length;
    }
    for (QTextLayout::FormatRange &range : ranges)
        makeRoom(range, *block.layout());
}

void BoxPainting::addSelections(const QTextBlock &block, Ranges &ranges) const
{
    for (const auto &selection : context.selections) {
        QTextLayout::FormatRange range;
        range.format = selection.format;
        const QTextCursor &cursor = selection.cursor;
        range.start = cursor.selectionStart() - block.position();
        range.length = cursor.selectionEnd() - cursor.selectionStart();
        const bool isWholeLine = range.format.hasProperty(QTextFormat::FullWidthSelection) &&
                                 !cursor.hasSelection() && block.contains(cursor.position());
        if (isWholeLine) {
            range.start = 0;
            range.length = block.length();
        }
        if (range.length == 0 || range.start >= block.length() || range.start + range.length <= 0)
            continue;
        const QColor text = colourOf(range.format, QTextFormat::ForegroundBrush);
        if (const QColor ground = colourOf(range.format, QTextFormat::BackgroundBrush);
            text.isValid() && ground.isValid())
            range.format.setForeground(colours(text, ground));
        ranges.append(range);
    }
}

void BoxPainting::paintCaret(QPainter &painter, const ShownLine &line) const
{
    const QTextLayout &layout = *line.block.layout();
    const int place = context.cursorPosition;
    const bool composes = place < -1 && !layout.preeditAreaText().isEmpty();
    if (composes) // counted down from there
        layout.drawCursor(&painter, line.place.topLeft(), layout.preeditAreaPosition() - place - 2,
                          caretWidth);
    else if (line.block.contains(place))
        layout.drawCursor(&painter, line.place.topLeft(), place - line.block.position(),
                          caretWidth);
}

void BoxPainting::paint(QPainter &painter, const ShownLines &lines, const QRectF &area) const
{
    painter.setClipRect(area);
    painter.setPen(colours(context.palette.text().color(), {}));
    for (const ShownLine &line : lines) {
        painter.setBrushOrigin(QPointF(line.place.left(), 0)); // where waves under words begin
        Ranges ranges;
        addColours(line.block, ranges);
        addSelections(line.block, ranges);
        line.block.layout()->draw(&painter, line.place.topLeft(), ranges, area);
        if (showsCaret)
            paintCaret(painter, line);
    }
}

} // namespace ORVTListview
