#include "workbench/views/TabKey.h"

#include "workbench/views/Workplace.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QStyleHints>

namespace ORVTListview {

QWidget *nextByTab(QWidget &window, const Workplace &workplace, bool isForward)
{
    const bool goesToAll =
        QGuiApplication::styleHints()->tabFocusBehavior() == Qt::TabFocusAllControls;
    const int wanted = goesToAll ? Qt::TabFocus : Qt::StrongFocus;
    const auto isStop = [&](const QWidget &widget) {
        return (widget.focusPolicy() & wanted) == wanted && !widget.focusProxy() &&
               widget.isVisibleTo(&window) && widget.isEnabled() && !workplace.isBehind(widget);
    };
    const auto step = [isForward](const QWidget &widget) {
        return isForward ? widget.nextInFocusChain() : widget.previousInFocusChain();
    };
    QWidget *from = window.focusWidget() ? window.focusWidget() : &window;
    for (QWidget *to = step(*from); to && to != from; to = step(*to)) {
        if (isStop(*to))
            return to;
    }
    return nullptr;
}

} // namespace ORVTListview
