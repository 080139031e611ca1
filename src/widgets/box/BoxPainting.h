#pragma once

#include "widgets/box/BoxLayers.h"

#include <QtGui/QAbstractTextDocumentLayout>

class QPainter;

namespace ORVTListview {

// Paints the lines of a box in the colours that its layers choose for its text. The text
// itself and its layout stay as they are.
struct BoxPainting
{
    const BoxLayers::TextColours &colours;
    QAbstractTextDocumentLayout::PaintContext context;
    bool showsCaret = false;
    int caretWidth = 1;

    void paint(QPainter &painter, const ShownLines &lines, const QRectF &area) const;

private:
    using Ranges = QList<QTextLayout::FormatRange>;

    void addColours(const QTextBlock &block, Ranges &ranges) const;
    void addSelections(const QTextBlock &block, Ranges &ranges) const;
    void paintCaret(QPainter &painter, const ShownLine &line) const;
};

} // namespace ORVTListview
