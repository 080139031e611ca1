#pragma once

#include <QtWidgets/QMenu>

class QDockWidget;

namespace ORVTListview {

class Panes;
class Workplace;

// How the views stand in the window, and the ways between its parts.
class WindowMenu : public QMenu
{
    Q_OBJECT

public:
    // All of them outlive the menu.
    WindowMenu(Workplace &workplace, Panes &panes, QDockWidget &results, QWidget *parent);

private:
    void addPanes(QDockWidget &results);
    void addArrangement();
    void addTabs();
    void refresh();

    Workplace &m_workplace;
    Panes &m_panes;
    QAction *m_float = nullptr;
    QAction *m_close = nullptr;
    QList<QAction *> m_ofSeveral; // possible with several views only
};

} // namespace ORVTListview
