#include "support/painting.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview::bench {

PaintWatch::PaintWatch(QWidget &painted)
{
    painted.installEventFilter(this);
}

bool PaintWatch::eventFilter(QObject *watched, QEvent *event)
{
    m_isPainted = m_isPainted || event->type() == QEvent::Paint;
    return QObject::eventFilter(watched, event);
}

bool PaintWatch::finishPainting()
{
    // A repaint is posted by the change itself, by the layout it posts, or by a
    // timer of no length; what needs more rounds than this waits for the clock.
    constexpr int rounds = 10;
    for (int i = 0; i < rounds && !m_isPainted; ++i)
        QCoreApplication::processEvents();
    return m_isPainted;
}

void showForBenchmark(QWidget &window)
{
    window.resize(900, 600);
    window.show();
    window.activateWindow();
    QCoreApplication::processEvents();
}

} // namespace ORVTListview::bench
