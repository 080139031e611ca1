#include "editor/CommandsState.h"

#include "editor/CommandTools.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>

#include <utility>

namespace ORVTListview {

CommandsState::CommandsState(RichTextBox &box)
    : m_box(&box)
    , m_told(mayChangeIn(box))
{
    box.installEventFilter(this);
}

bool CommandsState::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (!std::exchange(m_isToBeTold, true))
            QMetaObject::invokeMethod(this, &CommandsState::tell, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void CommandsState::tell()
{
    m_isToBeTold = false;
    const bool isEnabled = m_box && mayChangeIn(*m_box);
    if (std::exchange(m_told, isEnabled) != isEnabled)
        Q_EMIT changed(isEnabled);
}

} // namespace ORVTListview
