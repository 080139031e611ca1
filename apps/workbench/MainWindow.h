#pragma once

#include <ORVTListview/ORVListView.h>

#include <QtWidgets/QMainWindow>

class QLabel;
class QStackedWidget;

namespace ORVTListview {

class CheckResults;
class EditMenu;
class Languages;
class OpeningProgress;
class OpeningFault;
class PointChooser;
class PointRenaming;
class PointValues;
class ProjectDocument;
class ProjectHistory;
class ProjectSaving;
class ProjectView;
class RecoveryKeeper;
class RecoveryOffer;
struct ProgramReport;

// A small host: shows a project in the library's components.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // The languages outlive the window.
    explicit MainWindow(Languages &languages, QWidget *parent = nullptr);
    ~MainWindow() override;

    // Shows the project. What is shown goes without a question. Raises Error and
    // keeps what is shown when the file cannot be read.
    void openProject(const QString &fileName);

    // The same for a user who is there: tells in the window what is wrong, and what can be
    // done, and offers work that was not saved the last time.
    void openForUser(const QString &fileName);

    // Shows the program, or the table of a type.
    void showType(LwType type);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildProgramMenu();
    void buildPointsMenu();
    void buildViewMenu();
    void buildStatusBar();
    void connectEditor();
    void connectPoints();
    void connectSaving();
    void chooseProject();
    void openByHand(const QString &fileName);
    void showProgram();
    void applyAppearance();
    void followPalette();
    ProgramReport checkShownProgram();
    void analyse();
    void compile();
    void goTo(const QString &word, qint32 line);
    void showPosition();
    void showProgramInfo();
    void retranslate();

    Languages &m_languages;
    PointChooser *m_points; // made in the order of the Tab key
    QStackedWidget *m_pages;
    ProjectDocument *m_document;
    ProjectView *m_view;
    OpeningFault *m_fault;
    ORVListView *m_code; // the view owns it
    ProjectHistory *m_history;
    PointRenaming *m_renaming;
    ProjectSaving *m_saving;
    RecoveryKeeper *m_recovery;
    RecoveryOffer *m_offer;
    PointValues *m_values;
    CheckResults *m_results;
    QLabel *m_programInfo;
    OpeningProgress *m_opening;
    QLabel *m_position;
};

} // namespace ORVTListview
