#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class PointReading;
class TrendDock;

// What is asked of the controller, how often, and what is drawn of its answers.
class ControllerMenu : public QMenu
{
    Q_OBJECT

public:
    // Both outlive the menu.
    ControllerMenu(PointReading &reading, TrendDock &trend, QWidget *parent);

Q_SIGNALS:
    // How values are read is to be chosen.
    void settingsWanted();

    // The rows that are selected in a table are to be drawn, too.
    void trendWanted();
};

} // namespace ORVTListview
