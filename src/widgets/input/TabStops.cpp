#include "widgets/input/TabStops.h"

#include <algorithm>
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
    }
    const QList<Control> controls = m_controls; // a receiver may give them back
    for (const Control &control : controls) {
        if (!control.widget)
            continue;
        const int withoutTab = control.policy & ~Qt::TabFocus;
        control.widget->setFocusPolicy(static_cast<Qt::FocusPolicy>(withoutTab));
        control.widget->setProperty(tabStopProperty, false);
    }
}

void TabStops::giveBack()
{
    QList<Control> controls = std::exchange(m_controls, {});
    controls.removeIf([](const Control &control) { return !control.widget; });
    // A policy is set for the focus proxy, too, which then gets its own.
    std::stable_partition(controls.begin(), controls.end(),
                          [](const Control &control) { return control.widget->focusProxy(); });
    for (const Control &control : std::as_const(controls)) {
        if (!control.widget)
            continue;
        control.widget->setFocusPolicy(control.policy);
        control.widget->setProperty(tabStopProperty, control.tabStop);
    }
}

} // namespace ORVTListview
