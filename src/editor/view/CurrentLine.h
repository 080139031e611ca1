#pragma once

#include "widgets/box/BoxLayers.h"

class QPlainTextEdit;

namespace ORVTListview {

// The line of the caret on a ground of its own, over the whole width, while nothing is
// selected beyond it.
class CurrentLine final : public QObject, public BoxLayer
{
    Q_OBJECT

public:
    CurrentLine(QPlainTextEdit &box, BoxLayers &layers);

    void setOn(bool on);

    void paintBelow(QPainter &painter, const ShownLines &lines) override;
    void paintMargin(QPainter &painter, const ShownLine &line, const QRect &strip) override;

private:
    void follow();

    QPlainTextEdit &m_box;
    int m_line = -1; // none while several are selected
};

} // namespace ORVTListview
