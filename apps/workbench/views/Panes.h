#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>

class QDockWidget;
class QMainWindow;
class QWidget;

namespace ORVTListview {

class ProjectView;

// The parts of the window between which the keyboard walks: the points to choose from, the
// tree, each view that is seen, and the docks of the window such as the results.
class Panes : public QObject
{
    Q_OBJECT

public:
    // Belongs to the window. The chooser is the first of the panes.
    Panes(QMainWindow &window, ProjectView &view, QWidget &chooser);

    // Moves the focus so many panes on, round at the ends.
    void walk(int step);

    void goToChooser();
    void goToTree();
    void goToProgram();
    void goToTable();
    void goTo(QDockWidget &dock);

private:
    QList<QWidget *> panes() const;
    void enter(QWidget &pane);

    QMainWindow &m_window;
    ProjectView &m_view;
    QWidget &m_chooser;
};

} // namespace ORVTListview
