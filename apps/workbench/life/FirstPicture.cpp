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

// Queued: the parts of the window are painted behind itself.
bool FirstPicture::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint) {
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
