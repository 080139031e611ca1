#include "workbench/views/DropFocus.h"

#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QDropEvent>
#include <QtGui/QTextDocument>

namespace ORVTListview {

DropFocus::DropFocus(ORVListView &program, Workplace &workplace)
    : QObject(&program)
    , m_program(program)
    , m_workplace(workplace)
{
    program.RTextBox()->viewport()->installEventFilter(this);
}

// Queued: the program is still to take it, or to refuse it.
bool DropFocus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Drop && static_cast<QDropEvent *>(event)->source() != watched)
        QMetaObject::invokeMethod(
            this, [this, before = m_program.RTextBox()->document()->revision()] { enter(before); },
            Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void DropFocus::enter(int revision)
{
    if (m_program.RTextBox()->document()->revision() == revision)
        return;
    for (ViewDock *dock : m_workplace.shown()) {
        if (&dock->view() == &m_program)
            m_workplace.enter(*dock);
    }
}

} // namespace ORVTListview
