// How projects and pages come into the window, and go.

#include "MainWindow.h"

#include "Appearance.h"
#include "CheckResults.h"
#include "Languages.h"
#include "PlainTexts.h"
#include "PointChooser.h"
#include "PointValues.h"
#include "ProblemWalk.h"
#include "ProgramAnalyses.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "WindowPages.h"
#include "WindowStatus.h"
#include "WordColours.h"
#include "project/ProjectDocument.h"
#include "workbench/export/Exporting.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/saving/RecoveryOffer.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/ORVListView.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <memory>
#include <utility>

namespace ORVTListview {

void MainWindow::showFirstSteps()
{
    m_pages->showFirstSteps();
}

void MainWindow::leaveFirstSteps()
{
    if (!m_document->project()) {
        m_pages->showStart();
        return;
    }
    m_pages->showProject();
    m_view->current().setFocus();
}

void MainWindow::showSample()
{
    const Project *project = m_document->project();
    if (project && QFileInfo(project->fileName()) == QFileInfo(m_sample)) {
        m_pages->showProject();
        program().setFocus();
    } else if (m_saving->mayLeave()) {
        openForUser(m_sample);
    }
}

void MainWindow::openInPlace(const QString &fileName)
{
    if (!m_document->project()) {
        openForUser(fileName);
        return;
    }
    try {
        openProject(fileName);
    } catch (const Error &error) {
        m_document->noteProgramChange(); // it is still to be kept
        PlainTexts::warn(*this, tr("Open Project"), error.Description());
        return;
    }
    m_recent->add(fileName);
    offerWork();
}

void MainWindow::openForUser(const QString &fileName, Version version)
{
    try {
        openProject(fileName, version);
    } catch (const Error &error) {
        m_results->clear();
        m_pages->showFault(fileName, error.Description());
        return;
    }
    m_recent->add(fileName);
    offerWork();
}

// Then what is kept beside the project's files comes, as it is to be edited now.
void MainWindow::offerWork()
{
    const QPointer<MainWindow> self(this); // while the user decides
    m_offer->makeAll(m_languages.locale());
    if (self)
        Q_EMIT projectShown();
}

void MainWindow::openAtStart(const QString &sample)
{
    const QString last = m_recent->fileAtStart();
    openForUser(last.isEmpty() ? sample : last);
    if (!last.isEmpty() && showsProject() && !m_status->isTelling())
        m_status->tell(tr("The project of the last time is open again."));
}

void MainWindow::openProject(const QString &fileName, Version version)
{
    auto project = version == Version::Before ? Project::versionBefore(fileName)
                                              : std::make_unique<Project>(fileName);
    Q_EMIT projectLeaving();
    takeProject(*project);
    m_document->setProject(std::move(project));
    m_points->refill();
    showTitle();
    showProgram();
    m_recovery->begin();
    if (m_recovery->isOpenElsewhere())
        m_status->tellLonger(tr("Another workbench has this project open, too."));
}

void MainWindow::takeProject(Project &project)
{
    m_walk->giveUp();
    m_view->setProject(project);
    m_values->setProject(&project);
    m_export->setProject(&project);
    m_navigation->setProject(&project);
}

// The components go on with a project that has nothing.
void MainWindow::closeProject()
{
    Q_EMIT projectLeaving();
    m_results->clear();
    m_view->showType(dsCode);
    takeProject(m_document->none());
    m_document->setProject(nullptr);
    m_recovery->end();
    m_view->programs().clear();
    m_points->refill();
    m_analyses->takePoints({});
    setWindowModified(false);
    showTitle();
    m_pages->showStart();
}

void MainWindow::showProgram()
{
    m_results->clear();
    m_pages->showProject();
    m_view->showType(dsCode);
    m_view->programs().clear();
    applyAppearance();
    const Project &project = *m_document->project();
    m_results->setPrograms(project.programs());
    for (const ProjectProgram &each : project.programs())
        m_view->programs().view(each.id).codeView()->openProgram(project.program(each.id));
    m_colours->take();
    m_document->noteShown();
    m_analyses->takeList();
    takePoints();
    m_view->enterType(dsCode);
    showPosition();
    showProgramInfo();
}

} // namespace ORVTListview
