#include "DesignedKeys.h"

#include <QtCore/QEvent>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtWidgets/QWidget>

DesignedKeys::DesignedKeys(QWidget &component)
    : QObject(&component)
    , m_component(component)
{
    for (QWidget *part : component.findChildren<QWidget *>())
        part->installEventFilter(this);
}

bool DesignedKeys::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey = event->type() == QEvent::ShortcutOverride ||
                       event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (!isKey || !QDesignerFormWindowInterface::findFormWindow(&m_component))
        return QObject::eventFilter(watched, event);
    event->ignore(); // it goes on to the form
    return true;
}
