#include "widgets/box/BoxPainting.h"

#include "widgets/box/LinePlaces.h"

#include <QtCore/QVarLengthArray>
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

// With their sides between two pixels, so that pieces side by side share none.
QList<QRectF> onPixels(QList<QRectF> places, const QTransform &toPixels)
{
    const auto side = [&](double x) {
        return (std::round(x * toPixels.m11() + toPixels.dx()) - toPixels.dx()) / toPixels.m11();
    };
    for (QRectF &place : places) {
        const double left = side(place.left());
        place = QRectF(left, place.top(), side(place.right()) - left, std::ceil(place.height()));
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

struct ColouredGlyphs
{
    QRgb colour = 0;
    QList<quint32> indexes;
    QList<QPointF> places;
};
using GlyphColours = QVarLengthArray<ColouredGlyphs, 8>;

ColouredGlyphs &glyphsOf(QRgb colour, GlyphColours &parts, qsizetype most)
{
    for (ColouredGlyphs &part : parts) {
        if (part.colour == colour)
            return part;
    }
    parts.append({colour, {}, {}});
    parts.last().indexes.reserve(most);
    parts.last().places.reserve(most);
    return parts.last();
}

// Each glyph in the colour of its place, those of a colour together.
template <typename ColourAt>
void drawInColours(QPainter &painter, const QPointF &corner, const QGlyphRun &glyphs,
                   ColourAt colourAt)
{
    GlyphColours parts;
    const QList<quint32> indexes = glyphs.glyphIndexes();
    const QList<QPointF> places = glyphs.positions();
    ColouredGlyphs *part = nullptr;
    for (qsizetype i = 0; i < places.size(); ++i) {
        const QRgb colour = colourAt(places[i]).rgba();
        if (!part || part->colour != colour)
            part = &glyphsOf(colour, parts, places.size() - i);
        part->indexes.append(indexes[i]);
        part->places.append(places[i]);
    }
    for (const ColouredGlyphs &each : parts) {
        QGlyphRun some = glyphs;
        some.setGlyphIndexes(each.indexes);
        some.setPositions(each.places);
        painter.setPen(QColor::fromRgba(each.colour));
        painter.drawGlyphRun(corner, some);
    }
}

bool isDecorated(const QTextCharFormat &format)
{
    return format.hasProperty(QTextFormat::BackgroundBrush) || format.fontUnderline() ||
           format.fontOverline() || format.fontStrikeOut() ||
           format.underlineStyle() != QTextCharFormat::NoUnderline || format.isAnchor();
}

} // namespace

std::optional<BoxPainting::ColouredEnds> BoxPainting::colouredEnds(const QTextBlock &block) const
{
    ColouredEnds ends;
    int end = 0;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        const QTextCharFormat format = fragment.charFormat();
        if (isDecorated(format))
            return {};
        const QColor colour = colourOf(format, QTextFormat::ForegroundBrush);
        end += fragment.length();
        ends.append({end, colours(colour.isValid() ? colour : context.palette.text().color(), {})});
    }
    return ends;
}

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

// Of a line of even letters all glyphs are looked up at once, and each goes to the colour of
// its letter. False for a line that has more to be drawn.
bool BoxPainting::paintEvenLetters(QPainter &painter, const ShownLine &line,
                                   const LinePlaces &places, const QRectF &area) const
{
    const QList<RowSides> &rows = places.rows();
    const bool areEven =
        std::all_of(rows.begin(), rows.end(), [](const auto &row) { return row.areEven(); });
    const std::optional<ColouredEnds> ends = areEven ? colouredEnds(line.block) : std::nullopt;
    if (!ends)
        return false;
    const QPen plain = painter.pen();
    const QPointF corner = line.place.topLeft();
    for (const RowSides &row : rows) {
        const int start = row.row().textStart();
        const int end = start + row.row().textLength();
        const int from = std::clamp(row.letterAt(area.left() - corner.x()) - 1, start, end);
        const int to = std::clamp(row.letterAt(area.right() - corner.x()) + 1, from, end);
        for (const QGlyphRun &glyphs : row.row().glyphRuns(from, to - from))
            drawInColours(painter, corner, glyphs, [&](const QPointF &place) {
                const int letter = row.letterAt(place.x());
                const auto part = std::upper_bound(
                    ends->begin(), ends->end(), letter,
                    [](int one, const std::pair<int, QColor> &other) { return one < other.first; });
                return part == ends->end() ? plain.color() : part->second;
            });
    }
    painter.setPen(plain);
    return true;
}

// The pieces are drawn by their glyphs: handed over as selections of the line, the toolkit
// leaves some of them out where their sides are not whole numbers.
void BoxPainting::paintLine(QPainter &painter, const ShownLine &line, const QRectF &area) const
{
    const QTextLayout &layout = *line.block.layout();
    const QTransform toPixels = painter.deviceTransform();
    const QPointF corner = line.place.topLeft();
    const Ranges selections = selectionsIn(line.block);
    const LinePlaces standing(line);
    if (selections.isEmpty() && paintEvenLetters(painter, line, standing, area))
        return;
    // The area may hold no more than what stands above the line's letters.
    const QRectF beside(area.left(), line.place.top(), area.width(), line.place.height());
    const QList<Piece> others = colouredPieces(line.block, selections);
    if (others.isEmpty())
        return layout.draw(&painter, corner, selections, beside);
    QList<Piece> pieces;
    QList<QRectF> taken;
    for (const Piece &piece : others) {
        const int from = placeInLayout(piece.from, layout);
        const int to = placeInLayout(piece.to - 1, layout) + 1;
        const QList<QRectF> places = onPixels(standing.of({from, to - from}), toPixels);
        const auto isSeen = [&](const QRectF &place) { return place.intersects(beside); };
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
    layout.draw(&painter, corner, selections, beside);
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
    painter.setPen(colours(context.palette.text().color(), {}));
    for (const ShownLine &line : lines) {
        const QRectF part = area & line.area;
        painter.setClipRect(part);
        painter.setBrushOrigin(QPointF(line.place.left(), 0)); // where waves under words begin
        paintLine(painter, line, part);
        if (showsCaret)
            paintCaret(painter, line);
    }
}

} // namespace ORVTListview
