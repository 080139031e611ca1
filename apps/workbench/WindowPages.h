#pragma once

#include <QtWidgets/QStackedWidget>

#include <functional>

namespace ORVTListview {

class FirstSteps;
class OpeningFault;
class ProjectView;
class RecentProjects;
class StartPage;

// What stands in the window: the project, or one of the pages that say what can be done. A
// page is made when it is shown first.
class WindowPages : public QStackedWidget
{
    Q_OBJECT

public:
    // The page without a project lists the recent ones.
    WindowPages(ProjectView &view, RecentProjects &recent, QWidget *parent);

    bool showsProject() const;
    void showProject();
    void showStart();
    void showFirstSteps();
    void showFault(const QString &fileName, const QString &reason);

    // After a change of language.
    void retranslate();

Q_SIGNALS:
    void newWanted();
    void choiceWanted();
    void recentWanted(const QString &fileName);
    void projectWanted(const QString &fileName);
    void versionBeforeWanted(const QString &fileName);
    void sampleWanted();
    void keysWanted();

    // The first steps are to make way for what was there.
    void firstStepsClosed();

private:
    template <typename Page, typename... Parts>
    Page &made(Page *&page, Parts &...parts);
    void relay(const StartPage &page);
    void relay(const FirstSteps &page);
    void relay(const OpeningFault &page);

    ProjectView &m_view;
    RecentProjects &m_recent;
    StartPage *m_start = nullptr;
    FirstSteps *m_firstSteps = nullptr;
    OpeningFault *m_fault = nullptr;
};

} // namespace ORVTListview
