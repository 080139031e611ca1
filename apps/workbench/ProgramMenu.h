#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class CheckResults;
class ProgramChecking;
class ProgramNaming;
class ProgramNavigation;

// What is done with the programs as a whole, and the ways through them. In the editor F6 and
// Ctrl+F6 raise its events; the menu has them for the rest of the window.
class ProgramMenu : public QMenu
{
    Q_OBJECT

public:
    // All of them outlive the menu.
    struct Acts
    {
        ProgramChecking &checking;
        ProgramNaming &naming;
        ProgramNavigation &navigation;
    };
    ProgramMenu(const Acts &acts, const CheckResults &results, QWidget *parent);

private:
    void addNaming(ProgramNaming &naming);
};

} // namespace ORVTListview
