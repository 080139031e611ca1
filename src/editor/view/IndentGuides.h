#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// Thin lines down the indents of the lines, one at each tab stop; a blank line has those
// that the lines around it share.
class IndentGuides final : public BoxLayer
{
public:
    IndentGuides(QPlainTextEdit &box, BoxLayers &layers);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;

private:
    QPlainTextEdit &m_box;
};

} // namespace ORVTListview
