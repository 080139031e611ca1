#include "widgets/box/LinePlaces.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <cmath>

namespace ORVTListview {
namespace {

// How wide each letter of a text is, if all are equally wide in any style of a font; 0
// else. Of other letters than these the font may have none.
qreal evenWidth(const QFont &font)
{
    const QFontMetricsF metrics(font);
    const qreal width = metrics.horizontalAdvance(u' ');
    const auto isAsWide = [&](QChar letter) { return metrics.horizontalAdvance(letter) == width; };
    return isAsWide(u'i') && isAsWide(u'W') && isAsWide(u'.') ? width : 0;
}

bool isPlain(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
}

} // namespace

RowSides::RowSides(const QTextLine &row, const QTextBlock &line)
    : m_row(row)
{
    const int length = row.textLength();
    if (length == 0 || line.textDirection() != Qt::LeftToRight ||
        !line.layout()->preeditAreaText().isEmpty() ||
        !isPlain(line.text().mid(row.textStart(), length)))
        return;
    const qreal width = evenWidth(line.document()->defaultFont());
    m_start = row.cursorToX(row.textStart());
    const qreal whole = row.cursorToX(row.textStart() + length) - m_start;
    if (width > 0 && std::abs(whole - length * width) < 0.01)
        m_step = whole / length;
}

LinePlaces::LinePlaces(const ShownLine &line)
    : m_corner(line.place.topLeft())
{
    const QTextLayout &layout = *line.block.layout();
    for (int i = 0; i < layout.lineCount(); ++i)
        m_rows.append(RowSides(layout.lineAt(i), line.block));
}

QRectF LinePlaces::between(const RowSides &sides, int from, int to) const
{
    const qreal one = sides.at(from);
    const qreal other = sides.at(to);
    return {m_corner.x() + std::min(one, other), m_corner.y() + sides.row().y(),
            std::abs(other - one), sides.row().height()};
}

QList<QRectF> LinePlaces::of(const TextPiece &piece) const
{
    QList<QRectF> places;
    for (const RowSides &sides : m_rows) {
        const int start = sides.row().textStart();
        const int from = std::max(start, piece.start);
        const int to = std::min(start + sides.row().textLength(), piece.end());
        if (from < to)
            places.append(between(sides, from, to));
    }
    return places;
}

} // namespace ORVTListview
