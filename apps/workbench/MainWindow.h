#pragma once

#include "workbench/settings/Settings.h"

#include <ORVTListview/Types.h>

#include <QtCore/QTimer>
#include <QtWidgets/QMainWindow>

namespace ORVTListview {

class CheckResults;
class ControllerPart;
class EditMenu;
class Exporting;
class Languages;
class Panes;
class ProblemWalk;
class ORVListView;
class ProgramAnalyses;
class ProgramChecking;
class ProgramNaming;
class ProgramNavigation;
class PointChooser;
class PointImporting;
class PointRenaming;
class PointValues;
class Project;
class ProjectDocument;
class ProjectHistory;
class ProjectLife;
class ProjectSaving;
class ProjectView;
class RecentProjects;
class RecoveryKeeper;
class RecoveryOffer;
class WindowPages;
class WindowStatus;
class WordColours;

// A small host: shows a project in the library's components.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // The languages outlive the window.
    explicit MainWindow(Languages &languages, QWidget *parent = nullptr);
    ~MainWindow() override;

    // Shows the project. What is shown goes without a question. Raises Error and
    // keeps what is shown when the file cannot be read. The version before: what the file was
    // before it was saved last, to be saved into it.
    enum class Version { Now, Before };
    void openProject(const QString &fileName, Version version = Version::Now);

    // The same for a user who is there: tells in the window what is wrong, and what can be
    // done, and offers work that was not saved the last time.
    void openForUser(const QString &fileName, Version version = Version::Now);

    // The same in the place of a project that is shown, which stays when the other one cannot
    // be opened.
    void openInPlace(const QString &fileName);

    // For a picture: nothing is kept of what could be typed, and no other workbench that has
    // the project open is spoken of. To be said before a project is opened.
    void keepNothing();

    // Shows what can be done without a project. What is shown goes without a question.
    void closeProject();

    RecentProjects &recentProjects() { return *m_recent; }

    // Opens the project of the last time, or a sample where there is none.
    void openAtStart(const QString &sample);

    // What the user has decided for all projects; at first the theme and the language that
    // are in use.
    const Settings &settings() const { return m_settings; }
    void setSettings(const Settings &settings);

    // Shows the program that was used last, or the table of a type.
    void showType(LwType type);

    // The page of the first start, whose sample is this project.
    void showFirstSteps();
    void setSample(const QString &fileName) { m_sample = fileName; }
    QString sample() const { return m_sample; }

Q_SIGNALS:
    // The user has decided anew.
    void settingsChosen();

    // A project is open for the user, and before it makes way for another one, or none.
    void projectShown();
    void projectLeaving();

    // The window is about to be closed and still is as it was used, its views' own windows too.
    void leaving();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void buildMenus();
    void buildFileMenu();
    void enableWithProject(const QList<QAction *> &menus);
    void buildEditMenu();
    void buildViewMenu();
    void buildHelpMenu();
    void connectPrograms();
    void connectEditor(ORVListView &list);
    void connectPoints();
    void connectReading();
    void showRow(LwType type, qsizetype row);
    void tellPlace(LwType type, const QString &name, qsizetype wanted);
    void leaveFirstSteps();
    void connectSaving();
    void connectPages();
    void takeProject(Project &project);
    void offerWork();
    void showProgram();
    void showSample();
    void showPage();
    void showTitle();
    void chooseSettings();
    void decide(const Settings &settings);
    void applyAppearance();
    void connectAnalysis();
    void takePrograms();
    RichTextSettings shownAppearance() const;
    ORVListView &program() const;
    void takePoints();
    bool showsProject() const;
    void showPosition();
    void showProgramInfo();
    void retranslate();

    Languages &m_languages;
    Settings m_settings;
    QString m_sample;
    PointChooser *m_points; // made in the order of the Tab key
    ProjectDocument *m_document;
    ControllerPart *m_controller;
    ProjectView *m_view;
    RecentProjects *m_recent;
    WindowPages *m_pages;
    ProjectHistory *m_history;
    PointRenaming *m_renaming;
    ProgramNaming *m_naming;
    PointImporting *m_importing;
    ProjectSaving *m_saving;
    ProjectLife *m_life;
    RecoveryKeeper *m_recovery;
    RecoveryOffer *m_offer;
    Exporting *m_export;
    PointValues *m_values;
    CheckResults *m_results;
    ProgramAnalyses *m_analyses;
    ProgramChecking *m_checking;
    WordColours *m_colours;
    ProgramNavigation *m_navigation;
    ProblemWalk *m_walk;
    Panes *m_panes;
    WindowStatus *m_status;
    QTimer m_caret;   // since it moved, till that is told
    QTimer m_palette; // since it changed, till the program has its colours
};

} // namespace ORVTListview
