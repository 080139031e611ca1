#include "widgets/box/LinePlaces.h"

#include "widgets/box/BoxLayout.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <cmath>

namespace ORVTListview {
namespace {

int withoutBlanksBehind(QStringView row)
{
    qsizetype length = row.size();
    while (length > 0 && row[length - 1] == u' ')
        --length;
    return static_cast<int>(length);
}

} // namespace

// The layout knows where a row ends but for the blanks there. To be told where a letter
// stands it would have to shape the line, of which it keeps nothing.
RowSides::RowSides(const QTextLine &row, const QTextBlock &line)
    : m_row(row)
{
    const auto *layout = qobject_cast<const BoxLayout *>(line.document()->documentLayout());
    const qreal width = layout ? layout->letters().evenWidth() : 0;
    const QString text = line.text();
    const QStringView letters = QStringView(text).mid(row.textStart(), row.textLength());
    if (width == 0 || letters.isEmpty() || line.textDirection() != Qt::LeftToRight ||
        !line.layout()->preeditAreaText().isEmpty() || !FontLetters::arePlain(letters))
        return;
    const auto isAlike = [](qreal one, qreal other) { return std::abs(one - other) < 0.01; };
    const QRectF seen = row.naturalTextRect();
    m_start = seen.left();
    if (isAlike(seen.width(), withoutBlanksBehind(letters) * width) ||
        isAlike(row.cursorToX(row.textStart() + row.textLength()) - m_start,
                row.textLength() * width)) // the last letter may be wider than its place
        m_step = width;
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
