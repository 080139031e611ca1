#pragma once

#include <QtCore/QList>
#include <QtCore/QPointer>
#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

namespace ORVTListview {

class ViewDock;

// The views of a project as users arrange them: in tabs, side by side, in windows of their
// own. One of them is the current one, which commands are for: the one that had the focus,
// or was shown, last.
class Workplace : public QMainWindow
{
    Q_OBJECT

public:
    explicit Workplace(QWidget *parent);
    ~Workplace() override;

    // As saveState() had it. Before it is shown it has not the room for it, so the parts of it
    // come to be as large as they were once it is.
    void arrange(const QByteArray &state);

    // Belongs here from now on, hidden at first. Where it comes to stand: as a tab of the
    // other one, or for null beside all.
    void add(ViewDock &dock, ViewDock *other);

    // In the order in which they were added; shown ones only.
    QList<ViewDock *> shown() const;

    // Shown ones, the one that was used last first.
    QList<ViewDock *> used() const { return m_used; }

    // Null before the first one is shown.
    ViewDock *current() const { return m_used.value(0); }

    // Shows it in front of its tabs. The focus comes from another view, else stays where it is.
    void show(ViewDock &dock);

    // The same, and the focus goes there.
    void enter(ViewDock &dock);

    // What users do with the current one. Beside: on the right of all others, or below them.
    void splitCurrent(Qt::Orientation orientation);
    void floatCurrent();
    void closeCurrent();

    // All of them into one row of tabs again.
    void gather();

    // Through the tabs, one on or one back, round at the ends.
    void goToTab(int step);

    // While the page with the views is not shown. Those in windows of their own go with it, and
    // come back with it.
    void putAside(bool isAside);

    // Hides one that is of no use any more, also one that is put aside.
    void leaveOut(ViewDock &dock);

    // Whether it is in a view that stands behind another one.
    bool isBehind(const QWidget &widget) const;

    // Titles and tabs as the views stand now. It comes by itself once the toolkit is done with
    // its layout, which a picture does not wait for.
    void dress();

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    // Another one, or none.
    void currentChanged();

    // There are more views, or fewer.
    void shownChanged();

    // The focus has gone into it, and it is in front.
    void entered(ORVTListview::ViewDock *dock);

protected:
    void showEvent(QShowEvent *event) override;

private:
    ViewDock *dockOf(const QWidget *widget) const;
    void setCurrent(ViewDock *dock);
    void putBack(ViewDock &dock);
    void noteClosed(ViewDock *dock);
    void chooseTab(QDockWidget *dock);

    QList<ViewDock *> m_docks;
    QList<ViewDock *> m_used; // the current one first
    QList<QPointer<ViewDock>> m_aside;
    bool m_isAside = false;
    QTimer m_settled;
    QByteArray m_arrangement; // to be restored once it is shown
};

} // namespace ORVTListview
