#include "widgets/input/TabStops.h"

#include <utility>

namespace ORVTListview {
namespace {

constexpr auto tabStopProperty = "TabStop";

bool isTabStop(const QWidget &widget)
{
    return widget.focusPolicy() & Qt::TabFocus;
}

} // namespace

void TabStops::takeFrom(QWidget *form)
{
    giveBack();
    if (!form)
        return;
    const QList<QWidget *> widgets = form->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QVariant tabStop = widget->property(tabStopProperty);
        if (!isTabStop(*widget) && !tabStop.isValid())
            continue;
        m_controls.append({widget, widget->focusPolicy(), tabStop});
        const int withoutTab = widget->focusPolicy() & ~Qt::TabFocus;
        widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(withoutTab));
        widget->setProperty(tabStopProperty, false);
    }
}

void TabStops::giveBack()
{
    for (const Control &control : std::exchange(m_controls, {})) {
        if (!control.widget)
            continue;
        control.widget->setFocusPolicy(control.policy);
        control.widget->setProperty(tabStopProperty, control.tabStop);
    }
}

} // namespace ORVTListview
