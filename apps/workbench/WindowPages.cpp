#include "WindowPages.h"

#include "OpeningFault.h"
#include "ProjectView.h"
#include "workbench/help/FirstSteps.h"
#include "workbench/life/StartPage.h"

namespace ORVTListview {

WindowPages::WindowPages(ProjectView &view, RecentProjects &recent, QWidget *parent)
    : QStackedWidget(parent)
    , m_view(view)
    , m_recent(recent)
{
    addWidget(&view);
}

bool WindowPages::showsProject() const
{
    return currentWidget() == &m_view;
}

void WindowPages::showProject()
{
    setCurrentWidget(&m_view);
}

void WindowPages::showStart()
{
    setCurrentWidget(&start());
}

void WindowPages::showFirstSteps()
{
    setCurrentWidget(&firstSteps());
}

void WindowPages::showFault(const QString &fileName, const QString &reason)
{
    setCurrentWidget(&fault());
    fault().show(fileName, reason);
}

StartPage &WindowPages::start()
{
    if (m_start)
        return *m_start;
    m_start = new StartPage(m_recent, this);
    addWidget(m_start);
    connect(m_start, &StartPage::newWanted, this, &WindowPages::newWanted);
    connect(m_start, &StartPage::choiceWanted, this, &WindowPages::choiceWanted);
    connect(m_start, &StartPage::projectWanted, this, &WindowPages::recentWanted);
    return *m_start;
}

FirstSteps &WindowPages::firstSteps()
{
    if (m_firstSteps)
        return *m_firstSteps;
    m_firstSteps = new FirstSteps(this);
    addWidget(m_firstSteps);
    connect(m_firstSteps, &FirstSteps::sampleWanted, this, &WindowPages::sampleWanted);
    connect(m_firstSteps, &FirstSteps::projectWanted, this, &WindowPages::choiceWanted);
    connect(m_firstSteps, &FirstSteps::keysWanted, this, &WindowPages::keysWanted);
    connect(m_firstSteps, &FirstSteps::closed, this, &WindowPages::firstStepsClosed);
    return *m_firstSteps;
}

OpeningFault &WindowPages::fault()
{
    if (m_fault)
        return *m_fault;
    m_fault = new OpeningFault(this);
    addWidget(m_fault);
    connect(m_fault, &OpeningFault::projectWanted, this, &WindowPages::projectWanted);
    connect(m_fault, &OpeningFault::versionBeforeWanted, this, &WindowPages::versionBeforeWanted);
    connect(m_fault, &OpeningFault::choiceWanted, this, &WindowPages::choiceWanted);
    return *m_fault;
}

void WindowPages::retranslate()
{
    if (m_start)
        m_start->retranslate();
    if (m_firstSteps)
        m_firstSteps->retranslate();
    if (m_fault)
        m_fault->retranslate();
}

} // namespace ORVTListview
