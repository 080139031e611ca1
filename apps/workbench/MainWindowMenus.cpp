// The window's menus.

#include "MainWindow.h"

#include "CheckResults.h"
#include "EditMenu.h"
#include "PointChooser.h"
#include "PointsMenu.h"
#include "ProgramChecking.h"
#include "ProgramMenu.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "ViewMenu.h"
#include "WindowPages.h"
#include "WindowStatus.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/export/Exporting.h"
#include "workbench/help/HelpMenu.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/life/FileMenu.h"
#include "workbench/life/ProjectLife.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/ProgramNaming.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/views/Panes.h"
#include "workbench/views/WindowMenu.h"

#include <QtWidgets/QMenuBar>

namespace ORVTListview {

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    menuBar()->addMenu(
        new ProgramMenu({*m_checking, *m_naming, *m_navigation}, *m_results, menuBar()));
    menuBar()->addMenu(new PointsMenu(
        *m_view, *m_document,
        {*m_renaming, *m_importing, m_controller->reading(), *m_points, *m_navigation}, menuBar()));
    m_controller->addMenu(*menuBar());
    enableWithProject(menuBar()->actions().sliced(1));
    buildViewMenu();
    menuBar()->addMenu(new WindowMenu(m_view->workplace(), *m_panes, *m_results, menuBar()));
    buildHelpMenu();
}

void MainWindow::buildFileMenu()
{
    auto *file = new FileMenu({*m_life, *m_saving, *m_recent, *m_export}, menuBar());
    menuBar()->addMenu(file);
    const auto follow = [this, file] {
        file->follow(showsProject(), !m_view->currentTable());
        m_points->setEnabled(showsProject());
    };
    connect(m_view, &ProjectView::shown, file, follow);
    connect(m_pages, &QStackedWidget::currentChanged, file, follow);
    follow();
}

// Also their keys.
void MainWindow::enableWithProject(const QList<QAction *> &menus)
{
    for (QAction *menu : menus) {
        const auto follow = [this, menu] { menu->setEnabled(showsProject()); };
        connect(m_view, &ProjectView::shown, menu, follow);
        connect(m_pages, &QStackedWidget::currentChanged, menu, follow);
        follow();
    }
}

void MainWindow::buildEditMenu()
{
    auto *edit = new EditMenu(*m_view, *m_history, m_export->colours(), menuBar());
    menuBar()->addMenu(edit);
    connect(edit, &EditMenu::acted, this, &MainWindow::showPosition);
    connect(m_document, &ProjectDocument::tablesChanged, edit, &EditMenu::refresh);
    connect(m_document, &ProjectDocument::stepCarriedOut, edit, &EditMenu::refresh);
    connect(edit, &EditMenu::told, m_status, &WindowStatus::tell);
}

void MainWindow::buildHelpMenu()
{
    auto *help = new HelpMenu(*menuBar());
    menuBar()->addMenu(help);
    connect(help, &HelpMenu::firstStepsWanted, this, &MainWindow::showFirstSteps);
}

void MainWindow::buildViewMenu()
{
    auto *view = new ViewMenu(*m_view, *m_walk, m_languages, menuBar());
    menuBar()->addMenu(view);
    connect(view, &ViewMenu::editorChanged, this, &MainWindow::showPosition);
    connect(view, &ViewMenu::languageChosen, this, [this](const QLocale &language) {
        Settings settings = m_settings;
        settings.language = language;
        decide(settings);
    });
    connect(view, &ViewMenu::settingsWanted, this, &MainWindow::chooseSettings);
}

} // namespace ORVTListview
