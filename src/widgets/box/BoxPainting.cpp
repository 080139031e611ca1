#include "widgets/box/BoxPainting.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextLayout>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace ORVTListview {
namespace {

QColor colourOf(const QTextCharFormat &format, int property)
{
    return format.hasProperty(property) ? format.brushProperty(property).color() : QColor();
}

// What an input method composes is in the layout, but not in the text.
int placeInLayout(int place, const QTextLayout &layout)
{
    return place < layout.preeditAreaPosition()
               ? place
               : place + static_cast<int>(layout.preeditAreaText().size());
}

// Where a piece of a line stands, a rectangle for each row, its sides between two pixels,
// so that pieces side by side share none.
QList<QRectF> placesOf(const ShownLine &line, int from, int to, const QTransform &toPixels)
{
    QList<QRectF> places;
    const QTextLayout &layout = *line.block.layout();
    const auto sideAt = [&](const QTextLine &row, int place) {
        const double x = line.place.left() + row.cursorToX(place);
        const double pixel = std::round(x * toPixels.m11() + toPixels.dx());
        return (pixel - toPixels.dx()) / toPixels.m11();
    };
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine row = layout.lineAt(i);
        const int first = std::max(row.textStart(), from);
        const int last = std::min(row.textStart() + row.textLength(), to);
        if (first >= last)
            continue;
        const auto [left, right] = std::minmax({sideAt(row, first), sideAt(row, last)});
        places.append(
            QRectF(left, line.place.top() + row.y(), right - left, std::ceil(row.height())));
    }
    return places;
}

// The area but for the places, which lie in one row each.
QPainterPath without(QRectF area, QList<QRectF> places)
{
    QPainterPath rest;
    std::sort(places.begin(), places.end(), [](const QRectF &one, const QRectF &other) {
        return one.top() < other.top() || (one.top() == other.top() && one.left() < other.left());
    });
    while (!places.isEmpty()) {
        const double top = places.constFirst().top();
        const double bottom = places.constFirst().bottom();
        rest.addRect(QRectF(area.topLeft(), QPointF(area.right(), top)));
        double left = area.left();
        while (!places.isEmpty() && places.constFirst().top() == top) {
            const QRectF place = places.takeFirst();
            if (place.left() > left)
                rest.addRect(QRectF(left, top, place.left() - left, bottom - top));
            left = std::max(left, place.right());
        }
        rest.addRect(QRectF(left, top, std::max(0.0, area.right() - left), bottom - top));
        area.setTop(bottom);
    }
    rest.addRect(area);
    return rest;
}

} // namespace

// Pieces of the line that are shown in another colour; what is selected is not among them.
QList<BoxPainting::Piece> BoxPainting::colouredPieces(const QTextBlock &block,
                                                      const Ranges &selections) const
{
    QList<Piece> pieces;
    int start = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat format = fragment.charFormat();
        const int end = start + fragment.length();
        const QColor colour = colourOf(format, QTextFormat::ForegroundBrush);
        const QColor ground = colourOf(format, QTextFormat::BackgroundBrush);
        const bool isPlain = !colour.isValid() && !ground.isValid(); // the painter has its colour
        const QColor own = colour.isValid() ? colour : context.palette.text().color();
        const QColor shown = isPlain ? own : colours(own, ground);
        if (shown != own)
            addUnselected({start, end, shown, ground}, selections, pieces);
        start = end;
    }
    return pieces;
}

void BoxPainting::addUnselected(Piece piece, const Ranges &selections, QList<Piece> &pieces)
{
    for (const QTextLayout::FormatRange &selection : selections) {
        const int from = std::max(piece.from, selection.start);
        const int to = std::min(piece.to, selection.start + selection.length);
        if (from >= to)
            continue;
        Piece behind = piece;
        behind.from = to;
        piece.to = from;
        if (behind.from < behind.to)
            addUnselected(behind, selections, pieces);
    }
    if (piece.from < piece.to)
        pieces.append(piece);
}

BoxPainting::Ranges BoxPainting::selectionsIn(const QTextBlock &block) const
{
    Ranges ranges;
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
    return ranges;
}

// The pieces are drawn by their glyphs: handed over as selections of the line, the toolkit
// leaves some of them out where their sides are not whole numbers.
void BoxPainting::paintLine(QPainter &painter, const ShownLine &line, const QRectF &area) const
{
    const QTextLayout &layout = *line.block.layout();
    const QTransform toPixels = painter.deviceTransform();
    const QPointF corner = line.place.topLeft();
    const Ranges selections = selectionsIn(line.block);
    QList<Piece> pieces;
    QList<QRectF> taken;
    for (const Piece &piece : colouredPieces(line.block, selections)) {
        const QList<QRectF> places = placesOf(line, placeInLayout(piece.from, layout),
                                              placeInLayout(piece.to - 1, layout) + 1, toPixels);
        const auto isSeen = [&](const QRectF &place) { return place.intersects(area); };
        if (std::none_of(places.begin(), places.end(), isSeen))
            continue;
        pieces.append(piece);
        for (const QRectF &place : places) {
            if (piece.ground.isValid())
                painter.fillRect(place, piece.ground);
        }
        taken += places;
    }
    if (!taken.isEmpty())
        painter.setClipPath(without(area, taken));
    layout.draw(&painter, corner, selections, area);
    if (taken.isEmpty())
        return;
    painter.setClipRect(area);
    const QPen plain = painter.pen();
    for (const Piece &piece : pieces) {
        const int from = placeInLayout(piece.from, layout);
        painter.setPen(piece.colour);
        for (const QGlyphRun &glyphs :
             layout.glyphRuns(from, placeInLayout(piece.to - 1, layout) + 1 - from))
            painter.drawGlyphRun(corner, glyphs);
    }
    painter.setPen(plain);
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
        paintLine(painter, line, area);
        if (showsCaret)
            paintCaret(painter, line);
    }
}

} // namespace ORVTListview
