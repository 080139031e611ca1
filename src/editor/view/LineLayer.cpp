#include "editor/view/LineLayer.h"

namespace ORVTListview {

LineLayer::LineLayer(QPlainTextEdit &box, BoxLayers &layers, const Look &look)
    : BoxLayer(layers, look.order)
    , m_box(box)
    , m_look(look)
{
}

void LineLayer::paintAbove(QPainter &painter, const ShownLines &lines)
{
    if (m_look.above)
        m_look.above(painter, lines, m_box);
}

} // namespace ORVTListview
