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

// A page is made when it is wanted first.
template <typename Page, typename... Parts>
Page &WindowPages::made(Page *&page, Parts &...parts)
{
    if (!page) {
        page = new Page(parts..., this);
        addWidget(page);
        relay(*page);
    }
    return *page;
}

void WindowPages::relay(const StartPage &page)
{
    connect(&page, &StartPage::newWanted, this, &WindowPages::newWanted);
    connect(&page, &StartPage::choiceWanted, this, &WindowPages::choiceWanted);
    connect(&page, &StartPage::projectWanted, this, &WindowPages::recentWanted);
}

void WindowPages::relay(const FirstSteps &page)
{
    connect(&page, &FirstSteps::sampleWanted, this, &WindowPages::sampleWanted);
    connect(&page, &FirstSteps::newWanted, this, &WindowPages::newWanted);
    connect(&page, &FirstSteps::projectWanted, this, &WindowPages::choiceWanted);
    connect(&page, &FirstSteps::keysWanted, this, &WindowPages::keysWanted);
    connect(&page, &FirstSteps::closed, this, &WindowPages::firstStepsClosed);
}

void WindowPages::relay(const OpeningFault &page)
{
    connect(&page, &OpeningFault::projectWanted, this, &WindowPages::projectWanted);
    connect(&page, &OpeningFault::versionBeforeWanted, this, &WindowPages::versionBeforeWanted);
    connect(&page, &OpeningFault::choiceWanted, this, &WindowPages::choiceWanted);
}

void WindowPages::showStart()
{
    setCurrentWidget(&made(m_start, m_recent));
}

void WindowPages::showFirstSteps()
{
    setCurrentWidget(&made(m_firstSteps));
}

void WindowPages::showFault(const QString &fileName, const QString &reason)
{
    OpeningFault &fault = made(m_fault);
    setCurrentWidget(&fault);
    fault.show(fileName, reason);
}

void WindowPages::retranslate()
{
    for (ActionPage *page : findChildren<ActionPage *>(QString(), Qt::FindDirectChildrenOnly))
        page->retranslate();
}

} // namespace ORVTListview
