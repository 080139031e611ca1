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

} // namespace ORVTListview
