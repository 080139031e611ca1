#include "workbench/views/Panes.h"

#include "workbench/ProjectView.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QMainWindow>

#include <algorithm>
#include <tuple>

namespace ORVTListview {
namespace {

bool isBefore(const QWidget *one, const QWidget *other)
{
    const QPoint first = one->mapToGlobal(QPoint());
    const QPoint second = other->mapToGlobal(QPoint());
    return std::tuple(first.x(), first.y()) < std::tuple(second.x(), second.y());
}

bool hasFocus(const QWidget *pane)
{
    const QWidget *focus = QApplication::focusWidget();
    return focus && (pane == focus || pane->isAncestorOf(focus));
}

} // namespace

Panes::Panes(QMainWindow &window, ProjectView &view, QWidget &chooser)
    : QObject(&window)
    , m_window(window)
    , m_view(view)
    , m_chooser(chooser)
{
}

QList<QWidget *> Panes::panes() const
{
    QList<QWidget *> panes{&m_chooser, &m_view.tree()};
    for (ViewDock *dock : m_view.workplace().shown()) {
        if (dock->isSeen())
            panes.append(dock);
    }
    std::sort(panes.begin() + 2, panes.end(), isBefore);
    for (QDockWidget *dock :
         m_window.findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly))
        panes.append(dock);
    panes.removeIf([](const QWidget *pane) { return !pane->isVisible(); });
    return panes;
}

void Panes::walk(int step)
{
    const QList<QWidget *> all = panes();
    if (all.isEmpty())
        return;
    const auto at = std::find_if(all.cbegin(), all.cend(), hasFocus);
    const qsizetype from = at != all.cend() ? at - all.cbegin() : step > 0 ? -1 : 0;
    enter(*all.at((from + step + all.size()) % all.size()));
}

// By what had the focus there last.
void Panes::enter(QWidget &pane)
{
    if (auto *view = qobject_cast<ViewDock *>(&pane)) {
        m_view.workplace().enter(*view);
        return;
    }
    const auto *dock = qobject_cast<QDockWidget *>(&pane);
    QWidget *former = pane.focusWidget();
    QWidget *target = former && former->isVisible() ? former : dock ? dock->widget() : &pane;
    pane.activateWindow();
    target->setFocus(Qt::ShortcutFocusReason);
}

void Panes::goToChooser()
{
    enter(m_chooser);
}

void Panes::goToTree()
{
    enter(m_view.tree());
}

void Panes::goToProgram()
{
    m_view.enterType(dsCode);
}

// The inputs where no table is open.
void Panes::goToTable()
{
    for (ViewDock *dock : m_view.workplace().used()) {
        if (m_view.tables().tableIn(dock)) {
            m_view.workplace().enter(*dock);
            return;
        }
    }
    m_view.enterType(dsInput);
}

void Panes::goTo(QDockWidget &dock)
{
    dock.show();
    dock.raise();
    enter(dock);
}

} // namespace ORVTListview
