#include "workbench/views/WindowMenu.h"

#include "workbench/views/Panes.h"
#include "workbench/views/ViewDock.h"
#include "workbench/views/Workplace.h"

#include <QtGui/QAction>
#include <QtGui/QKeySequence>

namespace ORVTListview {

WindowMenu::WindowMenu(Workplace &workplace, Panes &panes, QDockWidget &results, QWidget *parent)
    : QMenu(tr("&Window"), parent)
    , m_workplace(workplace)
    , m_panes(panes)
{
    addPanes(results);
    addSeparator();
    addArrangement();
    addSeparator();
    addTabs();
    connect(this, &QMenu::aboutToShow, this, &WindowMenu::refresh);
    connect(&workplace, &Workplace::currentChanged, this, &WindowMenu::refresh);
    connect(&workplace, &Workplace::shownChanged, this, &WindowMenu::refresh);
    refresh();
}

void WindowMenu::addPanes(QDockWidget &results)
{
    const auto add = [this](const QString &text, const QKeySequence &keys, const auto &command) {
        addAction(text, keys, &m_panes, command);
    };
    add(tr("Next &Pane"), Qt::Key_F7, [this] { m_panes.walk(1); });
    add(tr("P&revious Pane"), Qt::SHIFT | Qt::Key_F7, [this] { m_panes.walk(-1); });
    add(tr("Go To Pro&ject"), Qt::CTRL | Qt::Key_1, [this] { m_panes.goToTree(); });
    add(tr("Go To Pro&gram"), Qt::CTRL | Qt::Key_2, [this] { m_panes.goToProgram(); });
    add(tr("Go To &Table"), Qt::CTRL | Qt::Key_3, [this] { m_panes.goToTable(); });
    add(tr("Go To Resu&lts"), Qt::CTRL | Qt::Key_4, [this, &results] { m_panes.goTo(results); });
    add(tr("Go To Po&ints"), Qt::CTRL | Qt::Key_5, [this] { m_panes.goToChooser(); });
}

void WindowMenu::addArrangement()
{
    const auto add = [this](const QString &text, const QKeySequence &keys, const auto &command) {
        return addAction(text, keys, &m_workplace, command);
    };
    m_ofSeveral = {
        add(tr("Show &Beside"), Qt::Key_F11, [this] { m_workplace.splitCurrent(Qt::Horizontal); }),
        add(tr("Show Belo&w"), Qt::SHIFT | Qt::Key_F11,
            [this] { m_workplace.splitCurrent(Qt::Vertical); }),
        add(tr("&All In Tabs"), Qt::CTRL | Qt::Key_F11, [this] { m_workplace.gather(); })};
    m_float = add(tr("&Own Window"), {}, [this] { m_workplace.floatCurrent(); });
    m_float->setCheckable(true);
    m_close =
        add(tr("&Close Table"), Qt::CTRL | Qt::Key_F4, [this] { m_workplace.closeCurrent(); });
}

void WindowMenu::addTabs()
{
    m_ofSeveral += {addAction(tr("&Next Tab"), Qt::CTRL | Qt::Key_PageDown, &m_workplace,
                              [this] { m_workplace.goToTab(1); }),
                    addAction(tr("Pre&vious Tab"), Qt::CTRL | Qt::Key_PageUp, &m_workplace,
                              [this] { m_workplace.goToTab(-1); })};
}

void WindowMenu::refresh()
{
    const ViewDock *current = m_workplace.current();
    for (QAction *action : m_ofSeveral)
        action->setEnabled(m_workplace.shown().size() > 1);
    m_float->setEnabled(current);
    m_float->setChecked(current && current->isFloating());
    m_close->setEnabled(current && current->features().testFlag(ViewDock::DockWidgetClosable));
}

} // namespace ORVTListview
