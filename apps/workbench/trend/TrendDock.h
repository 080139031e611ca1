#pragma once

#include <QtWidgets/QDockWidget>

class QAction;
class QToolBar;
class QTreeWidget;

namespace ORVTListview {

class Trend;
class TrendView;

// The trend under the other parts of the window: its commands, the picture, and a legend
// with last value and range of each line, in which Delete takes a line away. Nothing of that is
// there before it is shown first.
class TrendDock : public QDockWidget
{
    Q_OBJECT

public:
    TrendDock(Trend &trend, QWidget *parent);

    // "Read Cyclically", for menus, too: the one who sets the cycle checks it.
    QAction &cyclicAction() const { return *m_cyclic; }

    // After a change of language.
    void retranslate();

    void setVisible(bool visible) override;

Q_SIGNALS:
    void cyclicWanted(bool on);

protected:
    void changeEvent(QEvent *event) override;

private:
    void build();
    void layOut();
    void makeCommands();
    void makeLegend();
    void showLines();
    void showValues();
    void removeChosen();
    void exportSamples();

    Trend &m_trend;
    QAction *m_cyclic;
    TrendView *m_view = nullptr;
    QTreeWidget *m_legend = nullptr;
    QToolBar *m_commands = nullptr;
    QAction *m_pause = nullptr;
    QAction *m_clear = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_export = nullptr;
    QAction *m_in = nullptr;
    QAction *m_out = nullptr;
};

} // namespace ORVTListview
