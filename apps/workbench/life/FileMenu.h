#pragma once

#include <QtWidgets/QMenu>

namespace ORVTListview {

class Exporting;
class ProjectLife;
class ProjectSaving;
class RecentProjects;

// What users do with projects and what comes out of them. Commands can be chosen when there
// is a project for them.
class FileMenu : public QMenu
{
    Q_OBJECT

public:
    struct Parts
    {
        ProjectLife &life;
        ProjectSaving &saving;
        RecentProjects &recent;
        Exporting &exporting;
    };

    // The parts outlive the menu.
    FileMenu(const Parts &parts, QWidget *parent);

    // Whether a project is shown, and whether its program is.
    void follow(bool isProject, bool isProgram);

private:
    void addOpening(const Parts &parts);
    void addSaving(const Parts &parts);
    void addOutput(const Parts &parts);

    QList<QAction *> m_ofProject;
    QAction *m_print = nullptr;
};

} // namespace ORVTListview
