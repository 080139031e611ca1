#pragma once

#include <QtWidgets/QMenu>

class QMenuBar;

namespace ORVTListview {

// The keys of all commands, and what this program is.
class HelpMenu : public QMenu
{
    Q_OBJECT

public:
    // The menu bar whose commands are listed; it outlives the menu.
    explicit HelpMenu(QMenuBar &menus);

    void showKeys();

Q_SIGNALS:
    void firstStepsWanted();

private:
    void showAbout();

    QMenuBar &m_menus;
};

} // namespace ORVTListview
