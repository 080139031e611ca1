#include "editor/view/CurrentLine.h"

#include "editor/view/LayerOrder.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>

#include <utility>

namespace ORVTListview {
namespace {

int caretLine(const QPlainTextEdit &box)
{
    const QTextCursor caret = box.textCursor();
    const QTextBlock line = caret.block();
    return line.contains(caret.anchor()) ? line.blockNumber() : -1;
}

} // namespace

CurrentLine::CurrentLine(QPlainTextEdit &box, BoxLayers &layers)
    : CaretLayer(box, layers, LayerOrder::currentLine)
{
}

void CurrentLine::forget()
{
    m_line = -1;
}

void CurrentLine::follow()
{
    const int line = caretLine(m_box);
    const int former = std::exchange(m_line, line);
    if (line == former || !layers())
        return;
    layers()->updateLines([=](const QTextBlock &block) {
        return block.blockNumber() == line || block.blockNumber() == former;
    });
}

void CurrentLine::paintBelow(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::faintGround(ViewColours::groundOf(m_box));
    for (const ShownLine &line : lines) {
        if (line.block.blockNumber() == m_line)
            painter.fillRect(
                QRectF(0, line.place.top(), m_box.viewport()->width(), line.place.height()),
                ground);
    }
}

void CurrentLine::paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip)
{
    if (line.block.blockNumber() == m_line)
        painter.fillRect(strip, ViewColours::faintGround(ViewColours::groundOf(m_box)));
}

} // namespace ORVTListview
