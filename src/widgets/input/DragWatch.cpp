#include "widgets/input/DragWatch.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QDropEvent>
#include <QtWidgets/QWidget>

namespace ORVTListview {

DragWatch::DragWatch(QWidget &target)
    : m_target(target)
{
    target.installEventFilter(this);
}

void DragWatch::installOn(QWidget &target)
{
    (new DragWatch(target))->setParent(&target);
}

// A widget can still be sent to while its children go.
DragWatch::~DragWatch()
{
    if (!m_isOver)
        return;
    QDragLeaveEvent left;
    QCoreApplication::sendEvent(&m_target, &left);
}

bool DragWatch::eventFilter(QObject *, QEvent *event)
{
    // Who has refused a drag as it entered is told of no move.
    if (event->type() == QEvent::DragMove)
        m_isOver = true;
    else if (event->type() == QEvent::DragLeave || event->type() == QEvent::Drop)
        m_isOver = false;
    return false;
}

} // namespace ORVTListview
