// How a box is painted: its layers, and its text in colours that they choose or by the toolkit.

#include <ORVTListview/RichTextBox.h>

#include "widgets/box/BoxLayers.h"
#include "widgets/box/BoxPainting.h"
#include "widgets/box/BoxParts.h"

#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace ORVTListview {
namespace {

// What is in view, or reaches into it, is never painted without its colours.
void colourShownLines(BoxParts &parts, const QRect &view)
{
    if (!parts.late.areWaiting())
        return;
    // Each by itself: those between them may be folded away.
    const ShownLines lines = parts.layers->linesIn(view);
    for (const ShownLine &line : lines)
        parts.late.give(line.block.position(), line.block.position());
}

QColor asItIs(const QColor &text, const QColor &)
{
    return text;
}

// The toolkit takes the lines that stand in an area, not those that reach into it.
QRect withLines(QRect area, const ShownLines &lines)
{
    for (const ShownLine &line : lines) {
        const QRect place = line.place.toAlignedRect();
        area.setTop(std::min(area.top(), place.bottom() - 1));
        area.setBottom(std::max(area.bottom(), place.top() + 1));
    }
    return area;
}

// It begins with the first one in view, and ends at the view's end.
ShownLines linesBeyond(const QTextBlock &first, int end, ShownLines lines)
{
    lines.removeIf([&](const ShownLine &line) {
        return line.block.blockNumber() >= first.blockNumber() && line.place.top() <= end;
    });
    return lines;
}

} // namespace

bool RichTextBox::paintLayers(QPaintEvent &event)
{
    colourShownLines(*d, viewport()->rect());
    BoxLayers &layers = *d->layers;
    const ShownLines lines = layers.linesIn(event.region());
    const auto paint = [&](const ShownLines &some, const BoxLayers::TextColours &colours) {
        const bool showsCaret =
            !isReadOnly() || textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard);
        const BoxPainting painting{colours, getPaintContext(), showsCaret, cursorWidth()};
        // What is selected up to the edge leaves the room for the caret.
        const double text = std::max<double>(viewport()->width(),
                                             document()->documentLayout()->documentSize().width());
        QRectF area = event.rect();
        area.setRight(std::min(area.right(), contentOffset().x() + text -
                                                 document()->documentMargin() + cursorWidth()));
        QPainter painter(viewport());
        painting.paint(painter, some, area);
    };
    layers.paintBelow(event.region(), lines);
    if (layers.textColours() && !document()->isEmpty() && !overwriteMode()) {
        paint(lines, layers.textColours());
    } else {
        QPaintEvent wider(withLines(event.rect(), lines));
        QPlainTextEdit::viewportEvent(&wider);
        const ShownLines beyond = linesBeyond(firstVisibleBlock(), viewport()->height(), lines);
        if (!beyond.isEmpty())
            paint(beyond, asItIs);
    }
    layers.paintAbove(event.region(), lines);
    return true;
}

} // namespace ORVTListview
