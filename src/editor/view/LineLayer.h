#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// A layer that remembers nothing: what it shows is seen in the lines alone.
class LineLayer final : public BoxLayer
{
public:
    using Paint = void (*)(QPainter &painter, const ShownLines &lines, const QPlainTextEdit &box);

    // What paints below the text, or above it.
    struct Look
    {
        int order = 0;
        Paint below = nullptr;
        Paint above = nullptr;
    };

    LineLayer(QPlainTextEdit &box, BoxLayers &layers, const Look &look);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintAbove(QPainter &painter, const ShownLines &lines) override;

    // Thin lines down the indents of the lines, one at each tab stop; a blank line has
    // those that the lines around it share.
    static Look indentGuides();

    // Dots for the blanks of the lines, and arrows for their tabs.
    static Look blankMarks();

private:
    QPlainTextEdit &m_box;
    const Look m_look;
};

} // namespace ORVTListview
