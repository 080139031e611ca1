#include "editor/view/CaretLayer.h"
#include "editor/view/LayerOrder.h"
#include "editor/view/ViewColours.h"

#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {
namespace {

struct Line
{
    int number = -1; // none while several are selected

    bool touches(const QTextBlock &line) const { return line.blockNumber() == number; }

    friend bool operator==(const Line &, const Line &) = default;
};

class CurrentLine final : public CaretLayer
{
public:
    CurrentLine(QPlainTextEdit &box, BoxLayers &layers)
        : CaretLayer(box, layers, LayerOrder::currentLine)
    {
    }

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip) override;

private:
    void follow() override;
    void forget() override { m_line = {}; }

    Line m_line;
};

void CurrentLine::follow()
{
    const QTextCursor caret = m_box.textCursor();
    const QTextBlock line = caret.block();
    show(m_line, line.contains(caret.anchor()) ? Line{line.blockNumber()} : Line{});
}

void CurrentLine::paintBelow(QPainter &painter, const ShownLines &lines)
{
    const QColor ground = ViewColours::faintGround(ViewColours::groundOf(m_box));
    for (const ShownLine &line : lines) {
        if (m_line.touches(line.block))
            painter.fillRect(
                QRectF(0, line.place.top(), m_box.viewport()->width(), line.place.height()),
                ground);
    }
}

void CurrentLine::paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip)
{
    if (m_line.touches(line.block))
        painter.fillRect(strip, ViewColours::faintGround(ViewColours::groundOf(m_box)));
}

} // namespace

std::unique_ptr<CaretLayer> currentLineLayer(QPlainTextEdit &box, BoxLayers &layers)
{
    return std::make_unique<CurrentLine>(box, layers);
}

} // namespace ORVTListview
