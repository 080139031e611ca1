#pragma once

#include <QtWidgets/QDockWidget>

namespace ORVTListview {

class DockTitle;
class ORVListView;

// One view of the project, the program or a table, in a dock.
class ViewDock : public QDockWidget
{
    Q_OBJECT

public:
    // The name tells it from all others when an arrangement is kept; the view has it, too.
    ViewDock(const QString &name, QWidget *parent);

    ORVListView &view() const { return *m_view; }
    DockTitle &title() const { return *m_title; }

    // As it is to be read, a "&" included.
    void setTitle(const QString &title);

    // Whether somebody can see it, and not only the tab of it.
    bool isSeen() const { return m_isSeen; }

Q_SIGNALS:
    // It is seen from now on, or no longer.
    void seenChanged(bool isSeen);

    // It has been shown, perhaps behind a tab.
    void opened();

    // It has been hidden as a whole, with its tab.
    void closed();

    // Its window is to be closed, and the view cannot be.
    void backWanted();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    ORVListView *m_view;
    DockTitle *m_title;
    bool m_isSeen = false;
};

} // namespace ORVTListview
