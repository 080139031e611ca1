#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class CheckResults;
class ProgramChecking;
class ProgramNavigation;

// What is done with the program as a whole, and the ways through it. In the editor F6 and
// Ctrl+F6 raise its events; the menu has them for the rest of the window.
class ProgramMenu : public QMenu
{
    Q_OBJECT

public:
    // All of them outlive the menu.
    ProgramMenu(ProgramChecking &checking, ProgramNavigation &navigation,
                const CheckResults &results, QWidget *parent);
};

} // namespace ORVTListview
