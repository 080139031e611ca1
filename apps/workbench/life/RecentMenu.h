#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class RecentProjects;

// The projects that were opened last, as a menu that is filled when it opens.
class RecentMenu : public QMenu
{
    Q_OBJECT

public:
    // The list outlives the menu.
    RecentMenu(RecentProjects &recent, QWidget *parent);

Q_SIGNALS:
    void chosen(const QString &fileName);

private:
    void fill();

    RecentProjects &m_recent;
};

// A file's name and its folder, such as "ahu.json — ~/projects".
QString shownPlace(const QString &fileName);

} // namespace ORVTListview
