#include "CaretInSight.h"

#include <QtGui/QResizeEvent>
#include <QtWidgets/QPlainTextEdit>

namespace ORVTListview {

CaretInSight::CaretInSight(QPlainTextEdit &box)
    : QObject(&box)
    , m_box(box)
{
    box.viewport()->installEventFilter(this);
}

// The first line stays where it is until the box has heard of its size.
bool CaretInSight::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        const auto &resized = static_cast<const QResizeEvent &>(*event);
        const QRect caret = m_box.cursorRect();
        const bool wasInSight = caret.top() >= 0 && caret.bottom() < resized.oldSize().height();
        if (wasInSight && caret.bottom() >= resized.size().height())
            QMetaObject::invokeMethod(
                &m_box, [this] { m_box.ensureCursorVisible(); }, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
