#pragma once

#include <QtCore/QObject>

class QWidget;

namespace ORVTListview::bench {

// Sees when a widget was painted.
class PaintWatch final : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatch(QWidget &painted);

    // Handles events until what the widget asked to have repainted is painted.
    // Gives up, and says so, when it asked for nothing.
    bool finishPainting();

    void forget() { m_isPainted = false; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_isPainted = false;
};

// Shows a window of the size that all editors have, and waits for its picture.
void showForBenchmark(QWidget &window);

} // namespace ORVTListview::bench
