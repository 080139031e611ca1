#include "workbench/views/Workplace.h"

#include "workbench/views/DockTitle.h"
#include "workbench/views/DroppedDock.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/ViewTabs.h"

#include <ORVTListview/ORVListView.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;

Workplace::Workplace(QWidget *parent)
    : QMainWindow(parent, Qt::Widget)
{
    setWindowFlags(Qt::Widget); // the toolkit makes it a window else
    setContextMenuPolicy(Qt::NoContextMenu);
    setDockOptions(AllowNestedDocks | AllowTabbedDocks | GroupedDragging);
    setTabPosition(Qt::TopDockWidgetArea, QTabWidget::North);
    setDocumentMode(true);
    m_settled.setSingleShot(true);
    m_settled.setInterval(0ms);
    connect(&m_settled, &QTimer::timeout, this, &Workplace::dress);
    connect(this, &QMainWindow::tabifiedDockWidgetActivated, this, &Workplace::chooseTab);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget *, const QWidget *now) {
        if (ViewDock *dock = dockOf(now)) {
            if (isBehind(dock->view()))
                dock->raise(); // nobody types into what is hidden
            setCurrent(dock);
            Q_EMIT entered(dock);
        }
    });
}

// The focus goes on wandering while the docks go.
Workplace::~Workplace()
{
    qApp->disconnect(this);
    for (ViewDock *dock : std::as_const(m_docks))
        dock->disconnect(this);
}

void Workplace::arrange(const QByteArray &state)
{
    if (restoreState(state) && !isVisible())
        m_arrangement = state;
}

ViewDock *Workplace::dockOf(const QWidget *widget) const
{
    const auto found = std::find_if(m_docks.cbegin(), m_docks.cend(), [widget](ViewDock *dock) {
        return widget && dock->isAncestorOf(widget);
    });
    return found == m_docks.cend() ? nullptr : *found;
}

bool Workplace::isBehind(const QWidget &widget) const
{
    const ViewDock *dock = dockOf(&widget);
    return dock && dock->isVisible() && !dock->isSeen();
}

void Workplace::add(ViewDock &dock, ViewDock *other)
{
    m_docks.append(&dock);
    if (restoreDockWidget(&dock)) {
        // it stands where it did when the window was left
    } else if (other && !other->isFloating())
        tabifyDockWidget(other, &dock);
    else
        addDockWidget(Qt::TopDockWidgetArea, &dock, Qt::Horizontal);
    dock.hide();
    const auto soon = [this] { m_settled.start(); };
    connect(&dock, &ViewDock::seenChanged, this, soon);
    connect(&dock, &QDockWidget::topLevelChanged, this, soon);
    connect(&dock, &QDockWidget::topLevelChanged, &dock, [this, &dock](bool isFloating) {
        if (!isFloating)
            QTimer::singleShot(0ms, &dock, [this, &dock] { shareRoom(dock, shown(), *this); });
    });
    connect(&dock, &QDockWidget::dockLocationChanged, this, soon);
    connect(&dock, &ViewDock::opened, this, [this, &dock] {
        if (!m_used.contains(&dock))
            m_used.append(&dock);
        m_settled.start(); // perhaps a tab that nobody sees the view of
        Q_EMIT shownChanged();
    });
    connect(&dock, &ViewDock::backWanted, this, [this, &dock] { putBack(dock); });
    connect(&dock, &ViewDock::closed, this, [this, &dock] {
        noteClosed(&dock);
        Q_EMIT shownChanged();
    });
}

QList<ViewDock *> Workplace::shown() const
{
    QList<ViewDock *> shown = m_docks;
    shown.removeIf([](const ViewDock *dock) { return dock->isHidden(); });
    return shown;
}

void Workplace::setCurrent(ViewDock *dock)
{
    if (dock == current())
        return;
    m_used.removeOne(dock);
    m_used.prepend(dock);
    m_settled.start();
    Q_EMIT currentChanged();
}

void Workplace::noteClosed(ViewDock *dock)
{
    if (m_aside.contains(dock))
        return; // it is to be what it was
    const bool wasCurrent = dock == current();
    m_used.removeOne(dock);
    m_settled.start();
    if (!wasCurrent)
        return;
    Q_EMIT currentChanged();
    const QWidget *focus = QApplication::focusWidget();
    if (current() && (!focus || focus == this || isAncestorOf(focus)))
        enter(*current());
    else if (current())
        show(*current()); // it may be a tab behind another one
}

void Workplace::show(ViewDock &dock)
{
    const ViewDock *focused = dockOf(QApplication::focusWidget());
    dock.show();
    dock.raise();
    setCurrent(&dock);
    if (focused && focused != &dock)
        dock.view().setFocus(); // nobody types into what may be hidden now
}

void Workplace::enter(ViewDock &dock)
{
    show(dock);
    if (dock.isFloating())
        dock.activateWindow();
    dock.view().setFocus();
}

// On the way through the tabs by keyboard, where the focus stays; clicks enter.
void Workplace::chooseTab(QDockWidget *dock)
{
    auto *chosen = qobject_cast<ViewDock *>(dock);
    if (chosen && qobject_cast<QTabBar *>(QApplication::focusWidget()))
        setCurrent(chosen);
}

void Workplace::splitCurrent(Qt::Orientation orientation)
{
    ViewDock *dock = current();
    if (!dock || shown().size() < 2)
        return;
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = focus && dock->isAncestorOf(focus);
    dock->setFloating(false);
    addDockWidget(Qt::TopDockWidgetArea, dock, orientation);
    dock->show();
    QList<QDockWidget *> both{dock};
    for (ViewDock *other : shown()) {
        if (other != dock && other->isSeen() && !other->isFloating())
            both.prepend(other);
    }
    const int room = orientation == Qt::Horizontal ? width() : height();
    resizeDocks(both, QList<int>(both.size(), room / static_cast<int>(both.size())), orientation);
    if (hadFocus)
        enter(*dock);
    else
        show(*dock);
}

void Workplace::floatCurrent()
{
    ViewDock *dock = current();
    if (!dock || m_isAside)
        return;
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = focus && dock->isAncestorOf(focus);
    const QPoint place = dock->mapToGlobal(QPoint());
    dock->setFloating(!dock->isFloating()); // loses the focus
    // Over the place that it leaves it would not be seen to be a window.
    if (dock->isFloating() && dock->pos() == place) {
        const int aside = 2 * fontMetrics().height();
        dock->move(place + QPoint(aside, aside));
    }
    if (hadFocus)
        enter(*dock);
    else
        show(*dock);
}

// Into the window, as a tab of what stands there.
void Workplace::putBack(ViewDock &dock)
{
    const auto isOther = [this, &dock](const ViewDock *other) {
        return other != &dock && !other->isHidden() && other->parentWidget() == this &&
               !other->isFloating();
    };
    const auto other = std::ranges::find_if(m_used, isOther);
    dock.setFloating(false);
    if (other != m_used.cend())
        tabifyDockWidget(*other, &dock);
    else
        addDockWidget(Qt::TopDockWidgetArea, &dock);
    activateWindow(); // the other one is gone
    enter(dock);
}

void Workplace::closeCurrent()
{
    if (ViewDock *dock = current(); dock && dock->features().testFlag(ViewDock::DockWidgetClosable))
        dock->close();
}

void Workplace::gather()
{
    ViewDock *front = current();
    const QWidget *focus = QApplication::focusWidget();
    const bool hadFocus = front && focus && front->isAncestorOf(focus);
    const QList<ViewDock *> docks = shown();
    for (ViewDock *dock : docks) {
        dock->setFloating(false);
        if (dock == docks.constFirst())
            addDockWidget(Qt::TopDockWidgetArea, dock);
        else
            tabifyDockWidget(docks.constFirst(), dock);
        dock->show();
    }
    if (hadFocus)
        enter(*front);
    else if (front)
        show(*front);
}

void Workplace::putAside(bool isAside)
{
    m_isAside = isAside;
    if (isAside) {
        for (ViewDock *dock : shown()) {
            if (dock->isFloating() && !m_aside.contains(dock))
                m_aside.append(dock);
        }
    }
    const QList<QPointer<ViewDock>> moved = isAside ? m_aside : std::exchange(m_aside, {});
    for (ViewDock *dock : moved) {
        if (dock)
            dock->setVisible(!isAside);
    }
}

void Workplace::leaveOut(ViewDock &dock)
{
    m_aside.removeAll(&dock);
    dock.hide();
}

void Workplace::goToTab(int step)
{
    if (ViewDock *dock = ViewTabs::beside(*this, current(), step))
        enter(*dock);
}

void Workplace::retranslate()
{
    for (const ViewDock *dock : m_docks)
        dock->title().retranslate();
    dress();
}

// Not first in one dress and then in another.
void Workplace::showEvent(QShowEvent *event)
{
    if (!m_arrangement.isEmpty())
        restoreState(std::exchange(m_arrangement, {}));
    dress();
    QMainWindow::showEvent(event);
}

void Workplace::dress()
{
    for (ViewDock *dock : m_docks) {
        const bool isAlone = shown().size() < 2 || !tabifiedDockWidgets(dock).isEmpty();
        dock->title().setNeeded(dock->isFloating() || !isAlone);
        dock->title().setCurrent(dock == current());
    }
    ViewTabs::dress(*this);
}

} // namespace ORVTListview
