#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class PointChooser;

// Chooses by keyboard of which kind the points in the tool bar are.
class PointKindMenu : public QMenu
{
    Q_OBJECT

public:
    // The chooser outlives the menu.
    PointKindMenu(PointChooser &chooser, QWidget *parent);
};

} // namespace ORVTListview
