#include "workbench/views/ViewTabs.h"

#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTabBar>

namespace ORVTListview {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ViewTabs)
};

// The toolkit keeps the dock's address with the tab.
ViewDock *dockAt(const Workplace &workplace, const QTabBar &tabs, int index)
{
    const auto address = tabs.tabData(index).value<quintptr>();
    for (ViewDock *dock : workplace.shown()) {
        if (reinterpret_cast<quintptr>(static_cast<QDockWidget *>(dock)) == address)
            return dock;
    }
    return nullptr;
}

QList<QTabBar *> tabBars(const Workplace &workplace)
{
    return workplace.findChildren<QTabBar *>(); // also of windows that have several
}

// The wheel over tabs, or a key that reaches them, brings another view to the front, which is
// then the current one. The focus goes there if it was in the one before.
class TabsFollowing : public QObject
{
public:
    TabsFollowing(Workplace &workplace, QTabBar &tabs)
        : QObject(&tabs)
        , m_workplace(workplace)
        , m_tabs(tabs)
    {
        tabs.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Wheel || event->type() == QEvent::KeyPress) {
            const ViewDock *dock = m_workplace.current();
            const bool hasFocus = dock && dock->isAncestorOf(QApplication::focusWidget());
            QMetaObject::invokeMethod(
                this, [this, hasFocus] { follow(hasFocus); }, Qt::QueuedConnection);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void follow(bool withFocus)
    {
        ViewDock *dock = dockAt(m_workplace, m_tabs, m_tabs.currentIndex());
        if (!dock || dock == m_workplace.current())
            return;
        if (withFocus)
            m_workplace.enter(*dock);
        else
            m_workplace.show(*dock);
    }

    Workplace &m_workplace;
    QTabBar &m_tabs;
};

// The focus goes with a click, but not before the toolkit has it: a drag may begin.
void connectTabs(Workplace &workplace, QTabBar &tabs)
{
    new TabsFollowing(workplace, tabs);
    QObject::connect(&tabs, &QTabBar::tabBarClicked, &workplace, [&workplace, &tabs](int index) {
        QMetaObject::invokeMethod(
            &workplace,
            [&workplace, dock = QPointer<ViewDock>(dockAt(workplace, tabs, index))] {
                if (dock && !dock->isHidden())
                    workplace.enter(*dock);
            },
            Qt::QueuedConnection);
    });
    QObject::connect(&tabs, &QTabBar::tabCloseRequested, &workplace,
                     [&workplace, &tabs](int index) {
                         if (ViewDock *dock = dockAt(workplace, tabs, index))
                             dock->close();
                     });
}

void dressTab(const Workplace &workplace, QTabBar &tabs, int index)
{
    const auto side = static_cast<QTabBar::ButtonPosition>(
        tabs.style()->styleHint(QStyle::SH_TabBar_CloseButtonPosition, nullptr, &tabs));
    auto *button = qobject_cast<QAbstractButton *>(tabs.tabButton(index, side));
    const ViewDock *dock = dockAt(workplace, tabs, index);
    if (!dock || !button)
        return;
    if (dock->features().testFlag(QDockWidget::DockWidgetClosable)) {
        button->setToolTip(Texts::tr("Close"));
        button->setAccessibleName(Texts::tr("Close %1").arg(tabs.tabText(index)));
    } else {
        auto *room = new QWidget(&tabs); // a tab is as high as the others
        room->setFixedSize(0, button->sizeHint().height());
        tabs.setTabButton(index, side, room);
    }
}

} // namespace

void ViewTabs::dress(Workplace &workplace)
{
    for (QTabBar *tabs : tabBars(workplace)) {
        tabs->setAccessibleName(Texts::tr("Open views"));
        tabs->setElideMode(Qt::ElideNone); // those that have no room are scrolled to
        if (!tabs->tabsClosable()) {
            tabs->setTabsClosable(true);
            connectTabs(workplace, *tabs);
        }
        for (int index = 0; index < tabs->count(); ++index)
            dressTab(workplace, *tabs, index);
    }
}

ViewDock *ViewTabs::beside(const Workplace &workplace, const ViewDock *dock, int step)
{
    for (const QTabBar *tabs : tabBars(workplace)) {
        for (int index = 0; index < tabs->count(); ++index) {
            if (dock && dockAt(workplace, *tabs, index) == dock)
                return dockAt(workplace, *tabs, (index + step + tabs->count()) % tabs->count());
        }
    }
    return nullptr;
}

} // namespace ORVTListview
