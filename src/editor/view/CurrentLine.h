#pragma once

#include "editor/view/CaretLayer.h"

namespace ORVTListview {

// The line of the caret on a ground of its own, over the whole width, while nothing is
// selected beyond it.
class CurrentLine final : public CaretLayer
{
public:
    CurrentLine(QPlainTextEdit &box, BoxLayers &layers);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip) override;

private:
    void follow() override;
    void forget() override;

    int m_line = -1; // none while several are selected
};

} // namespace ORVTListview
