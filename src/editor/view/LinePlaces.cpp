#include "editor/view/LinePlaces.h"

#include <QtGui/QTextLayout>

#include <algorithm>

namespace ORVTListview {

QList<QRectF> placesOf(const ShownLine &line, const TextPiece &piece)
{
    QList<QRectF> places;
    const QTextLayout &layout = *line.block.layout();
    for (int i = 0; i < layout.lineCount(); ++i) {
        const QTextLine row = layout.lineAt(i);
        const int from = std::max(row.textStart(), piece.start);
        const int to = std::min(row.textStart() + row.textLength(), piece.end());
        if (from >= to)
            continue;
        const qreal one = row.cursorToX(from);
        const qreal other = row.cursorToX(to);
        places.append(QRectF(line.place.left() + std::min(one, other), line.place.top() + row.y(),
                             std::abs(other - one), row.height()));
    }
    return places;
}

TextEnd textEndOf(const ShownLine &line)
{
    const QTextLayout &layout = *line.block.layout();
    if (layout.lineCount() == 0)
        return {};
    const QTextLine row = layout.lineAt(layout.lineCount() - 1);
    const QRectF text = row.naturalTextRect();
    return {text.translated(line.place.topLeft()), text.left() > row.x() + 1};
}

QRectF placeBehind(const TextEnd &end, qreal gap, qreal width)
{
    const qreal left = end.isOpenToTheLeft ? end.text.left() - gap - width : end.text.right() + gap;
    return {left, end.text.top(), width, end.text.height()};
}

bool hidesLines(const QTextBlock &line)
{
    return line.isVisible() && line.next().isValid() && !line.next().isVisible();
}

QRectF foldSignOf(const TextEnd &end, qreal letter)
{
    return placeBehind(end, letter, 3 * letter);
}

} // namespace ORVTListview
