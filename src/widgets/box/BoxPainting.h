#pragma once

#include "widgets/box/BoxLayers.h"

#include <QtGui/QAbstractTextDocumentLayout>
#include <QtGui/QColor>
#include <QtGui/QTextLayout>

#include <optional>
#include <utility>

class QPainter;

namespace ORVTListview {

class LinePlaces;

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

    struct Piece
    {
        int from = 0; // in the line
        int to = 0;
        QColor colour;
        QColor ground; // of its own; invalid for none
    };

    // Where each part of a line ends that has a colour, with that, from the front; none for
    // a line with more than colours.
    using ColouredEnds = QList<std::pair<int, QColor>>;

    std::optional<ColouredEnds> colouredEnds(const QTextBlock &block) const;
    QList<Piece> colouredPieces(const QTextBlock &block, const Ranges &selections) const;
    static void addUnselected(Piece piece, const Ranges &selections, QList<Piece> &pieces);
    Ranges selectionsIn(const QTextBlock &block) const;
    void paintLine(QPainter &painter, const ShownLine &line, const QRectF &area) const;
    bool paintEvenLetters(QPainter &painter, const ShownLine &line, const LinePlaces &places,
                          const QRectF &area) const;
    void paintCaret(QPainter &painter, const ShownLine &line) const;
};

} // namespace ORVTListview
