#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// A layer that remembers nothing: what it shows is seen in the lines alone.
class LineLayer final : public BoxLayer
{
public:
    using Paint = void (*)(QPainter &painter, const ShownLines &lines, const QPlainTextEdit &box);

    // What paints above the text.
    struct Look
    {
        int order = 0;
        Paint above = nullptr;
    };

    LineLayer(QPlainTextEdit &box, BoxLayers &layers, const Look &look);

    void paintAbove(QPainter &painter, const ShownLines &lines) override;

    // Dots for the blanks of the lines, and arrows for their tabs.
    static Look blankMarks();

private:
    QPlainTextEdit &m_box;
    const Look m_look;
};

} // namespace ORVTListview
