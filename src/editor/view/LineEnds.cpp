#include "editor/view/LineEnds.h"

#include <QtGui/QTextLayout>

namespace ORVTListview {

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
