#include "workbench/life/FirstPicture.h"

#include <QtCore/QEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {

FirstPicture::FirstPicture(QWidget &window)
    : QObject(&window)
    , m_window(window)
{
    window.installEventFilter(this);
}

// Queued: the parts of the window are painted behind itself. One that starts minimised is not
// painted before somebody wants to see it, and has its project by then.
bool FirstPicture::eventFilter(QObject *watched, QEvent *event)
{
    const bool isShown =
        event->type() == QEvent::Show || event->type() == QEvent::WindowStateChange;
    if (event->type() == QEvent::Paint || (isShown && m_window.isMinimized())) {
        watched->removeEventFilter(this);
        QMetaObject::invokeMethod(this, &FirstPicture::tell, Qt::QueuedConnection);
    }
    return false;
}

void FirstPicture::tell()
{
    if (m_window.isVisible())
        Q_EMIT seen();
    deleteLater();
}

} // namespace ORVTListview
