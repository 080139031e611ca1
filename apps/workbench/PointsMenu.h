#pragma once

#include <ORVTListview/Types.h>

#include <QtWidgets/QMenu>

namespace ORVTListview {

class PointChooser;
class PointImporting;
class PointReading;
class PointRenaming;
class ProgramNavigation;
class ProjectDocument;
class ProjectView;

// What is done with the points of the current table, or from a program.
class PointsMenu : public QMenu
{
    Q_OBJECT

public:
    struct Acts
    {
        PointRenaming &renaming;
        PointImporting &importing;
        PointReading &reading;
        PointChooser &chooser;
        const ProgramNavigation &navigation;
    };

    // The tables' own, for the point of the selected row; no grid has it.
    static constexpr QKeyCombination removeKey = Qt::CTRL | Qt::Key_Delete;

    // All of them outlive the menu.
    PointsMenu(ProjectView &view, const ProjectDocument &document, const Acts &acts,
               QWidget *parent);

private:
    void addPoints(PointRenaming &renaming, PointImporting &importing);
    void addSwitches();
    void addPoint(PointRenaming &renaming);
    void refresh();
    LwType type() const;

    ProjectView &m_view;
    const ProjectDocument &m_document;
    PointReading &m_reading;
    const ProgramNavigation &m_navigation;
    QAction *m_read = nullptr;
    QAction *m_rename = nullptr;
    QAction *m_add = nullptr;
    QAction *m_duplicate = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_import = nullptr;
    QAction *m_fit = nullptr;
    QAction *m_cells = nullptr;
    QAction *m_overrides = nullptr;
};

} // namespace ORVTListview
