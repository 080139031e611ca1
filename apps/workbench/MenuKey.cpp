#include "MenuKey.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QContextMenuEvent>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace ORVTListview {
namespace {

// Where the toolkit has it for its own key.
void askForMenu(QWidget &widget)
{
    const QPoint place = widget.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, place, widget.mapToGlobal(place));
    QCoreApplication::sendEvent(&widget, &asked);
}

} // namespace

MenuKey::MenuKey()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto &key = *static_cast<const QKeyEvent *>(event);
    if (key.key() != Qt::Key_F10 || key.modifiers() != Qt::ShiftModifier)
        return false;
    if (!key.isAutoRepeat() && !QApplication::activePopupWidget())
        askForMenu(*static_cast<QWidget *>(watched));
    return true;
}

} // namespace ORVTListview
