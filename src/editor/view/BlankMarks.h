#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// Dots for the blanks of the lines, and arrows for their tabs.
class BlankMarks final : public BoxLayer
{
public:
    BlankMarks(QPlainTextEdit &box, BoxLayers &layers);

    void paintAbove(QPainter &painter, const ShownLines &lines) override;

private:
    void mark(QPainter &painter, const ShownLine &line) const;

    QPlainTextEdit &m_box;
};

} // namespace ORVTListview
