#include "editor/view/CaretLayer.h"

#include <QtGui/QTextDocument>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

CaretLayer::CaretLayer(QPlainTextEdit &box, BoxLayers &layers, int order)
    : BoxLayer(layers, order)
    , m_box(box)
{
}

void CaretLayer::setOn(bool on)
{
    if (on == isShown())
        return;
    setShown(on);
    if (!on) {
        m_box.disconnect(this);
        m_box.document()->disconnect(this);
        forget();
        return;
    }
    connect(&m_box, &QPlainTextEdit::cursorPositionChanged, this, &CaretLayer::follow);
    connect(&m_box, &QPlainTextEdit::selectionChanged, this, &CaretLayer::follow);
    connect(m_box.document(), &QTextDocument::contentsChanged, this, &CaretLayer::follow);
    follow();
}

} // namespace ORVTListview
