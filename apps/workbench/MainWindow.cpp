#include "MainWindow.h"

#include "Appearance.h"
#include "CheckResults.h"
#include "EditMenu.h"
#include "Languages.h"
#include "OpeningFault.h"
#include "OpeningProgress.h"
#include "PointChooser.h"
#include "PointTables.h"
#include "PointValues.h"
#include "PointsMenu.h"
#include "ProgramAnalyses.h"
#include "ProgramChecking.h"
#include "ProgramMenu.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "ViewMenu.h"
#include "editor/rules/colouring/ColourTable.h"
#include "project/PointReferences.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/export/Exporting.h"
#include "workbench/help/FirstSteps.h"
#include "workbench/help/HelpMenu.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/life/FileMenu.h"
#include "workbench/life/ProjectLife.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/life/StartPage.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/ProgramNaming.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/saving/RecoveryOffer.h"
#include "workbench/settings/SettingsDialog.h"
#include "workbench/views/Panes.h"
#include "workbench/views/ProgramViews.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/WindowMenu.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>

#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

MainWindow::MainWindow(Languages &languages, QWidget *parent)
    : QMainWindow(parent)
    , m_languages(languages)
    , m_points(new PointChooser(this))
    , m_pages(new QStackedWidget(this))
    , m_document(new ProjectDocument(
          {[this](qint32 id) { return m_view->programs().view(id).CodeText(); },
           [this](qint32 id) { return m_view->programs().view(id).RTextBox()->TextLength(); }},
          this))
    , m_controller(new ControllerPart(*m_document, *this))
    , m_view(new ProjectView(*m_document, this))
    , m_fault(new OpeningFault(this))
    , m_recent(new RecentProjects(this))
    , m_start(new StartPage(*m_recent, this))
    , m_firstSteps(new FirstSteps(this))
    , m_history(new ProjectHistory(*m_document, *m_view))
    , m_renaming(new PointRenaming(*m_document, m_view->programs(), *this))
    , m_naming(new ProgramNaming(*m_document, *m_view, *this))
    , m_importing(new PointImporting(*m_document, *this))
    , m_saving(new ProjectSaving(*m_document, *this))
    , m_life(new ProjectLife({*this, *m_document, *m_saving, *m_recent}))
    , m_recovery(new RecoveryKeeper(*m_document, this))
    , m_offer(new RecoveryOffer(*m_document, *m_recovery, m_view->programs(), *this))
    , m_export(new Exporting(*m_view, *this))
    , m_values(new PointValues(m_view->programs(), m_controller->reading(), this))
    , m_results(new CheckResults(this))
    , m_analyses(new ProgramAnalyses(m_view->programs(), this))
    , m_checking(
          new ProgramChecking({m_view->programs(), *m_analyses}, *m_document, *m_results, *this))
    , m_navigation(new ProgramNavigation(*m_view, *m_analyses, *m_results, this))
    , m_panes(new Panes(*this, *m_view, *m_points))
    , m_programInfo(new QLabel(this))
    , m_opening(new OpeningProgress(this))
    , m_position(new QLabel(this))
{
    m_points->setPictures(*program().GetImage());
    addToolBar(m_points);
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_fault);
    m_pages->addWidget(m_start);
    m_pages->addWidget(m_firstSteps);
    setCentralWidget(m_pages);
    addDockWidget(Qt::BottomDockWidgetArea, m_results);
    resizeDocks({m_results}, {160}, Qt::Vertical);
    m_results->hide();
    buildMenus();
    buildStatusBar();
    connectPrograms();
    connectPoints();
    connectReading();
    connectFirstSteps();
    connectSaving();
    connectPages();
    // Queued: the menu that the language was chosen in is made anew.
    connect(&languages, &Languages::changed, this, &MainWindow::retranslate, Qt::QueuedConnection);
    m_palette.setSingleShot(true);
    m_palette.setInterval(0ms);
    connect(&m_palette, &QTimer::timeout, this, &MainWindow::applyAppearance);
    showTitle();
    resize(1100, 700);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    menuBar()->addMenu(new ProgramMenu({*m_checking, *m_naming, *m_navigation}, *m_results, menuBar()));
    menuBar()->addMenu(
        new PointsMenu(*m_view, *m_document,
                       {*m_renaming, *m_importing, m_controller->reading(), *m_points}, menuBar()));
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

bool MainWindow::showsProject() const
{
    return m_document->project() && m_pages->currentWidget() == m_view;
}

void MainWindow::buildEditMenu()
{
    auto *edit = new EditMenu(*m_view, *m_history, m_export->colours(), menuBar());
    menuBar()->addMenu(edit);
    connect(edit, &EditMenu::acted, this, &MainWindow::showPosition);
    connect(m_document, &ProjectDocument::tablesChanged, edit, &EditMenu::refresh);
    connect(edit, &EditMenu::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
}

void MainWindow::buildHelpMenu()
{
    auto *help = new HelpMenu(*menuBar());
    menuBar()->addMenu(help);
    connect(help, &HelpMenu::firstStepsWanted, this, &MainWindow::showFirstSteps);
}

void MainWindow::buildViewMenu()
{
    auto *view = new ViewMenu(*m_view, m_languages, menuBar());
    menuBar()->addMenu(view);
    connect(view, &ViewMenu::editorChanged, this, &MainWindow::showPosition);
    connect(view, &ViewMenu::languageChosen, this, [this](const QLocale &language) {
        Settings settings = m_settings;
        settings.language = language;
        decide(settings);
    });
    connect(view, &ViewMenu::settingsWanted, this, &MainWindow::chooseSettings);
}

void MainWindow::buildStatusBar()
{
    m_programInfo->setContentsMargins(3, 0, 0, 0); // in line with the program
    statusBar()->addWidget(m_programInfo);
    statusBar()->addPermanentWidget(m_opening);
    m_opening->hide(); // the bar shows what it takes
    statusBar()->addPermanentWidget(m_position);
    statusBar()->setMinimumHeight(statusBar()->sizeHint().height()); // also with nothing in it
}

ORVListView &MainWindow::program() const
{
    return m_view->program();
}

void MainWindow::connectPrograms()
{
    m_view->programs().withEach(this, [this](qint32, ORVListView &list) { connectEditor(list); });
    connect(&m_view->programs(), &ProgramViews::made, this,
            [this](qint32, ORVListView &list) { list.Init_RichTextBox(shownAppearance()); });
    connect(m_document, &ProjectDocument::programListChanged, this, &MainWindow::takePrograms);
    connectAnalysis();
}

void MainWindow::connectEditor(ORVListView &list)
{
    RichTextBox &box = *list.RTextBox();
    connect(&list, &ORVListView::StatusUpdate, this, &MainWindow::showPosition);
    connect(&list, &ORVListView::QueryAnalyze, m_checking, &ProgramChecking::analyse);
    connect(&list, &ORVListView::QueryCompile, m_checking, &ProgramChecking::compile);
    connect(&box, &QPlainTextEdit::blockCountChanged, this, &MainWindow::showProgramInfo);
    connect(&box, &QPlainTextEdit::selectionChanged, this, &MainWindow::showPosition);
    connect(&box, &RichTextBox::Change, m_document, &ProjectDocument::noteProgramChange);
    box.viewport()->installEventFilter(this);
    connect(list.codeView(), &CodeView::problemChosen, m_view, [this] { m_view->enterType(dsCode); });
    connect(list.codeView(), &CodeView::problemChosen, this, &MainWindow::showPosition);
    m_opening->add(*list.codeView());
}

void MainWindow::takePrograms()
{
    m_view->takePrograms();
    m_results->setPrograms(m_document->project()->programs());
    m_analyses->takeList();
    showProgramInfo();
    showPosition();
}

void MainWindow::connectAnalysis()
{
    connect(m_analyses, &ProgramAnalyses::analysed, this,
            [this] { m_results->followProblems(m_checking->problems()); });
    connect(m_analyses, &ProgramAnalyses::linesReplaced, m_results, &CheckResults::moveLines);
    connect(m_navigation, &ProgramNavigation::moved, this, &MainWindow::showPosition);
    connect(m_navigation, &ProgramNavigation::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(m_document, &ProjectDocument::tablesChanged, this, &MainWindow::takePoints);
}

void MainWindow::takePoints()
{
    m_analyses->takePoints(otherUsesOf(*m_document->project()));
}

void MainWindow::connectPoints()
{
    connect(m_view, &ProjectView::shown, this, &MainWindow::showPage);
    connect(m_pages, &QStackedWidget::currentChanged, this, &MainWindow::showPage);
    connect(m_points, &PointChooser::chosen, m_view, &ProjectView::takePoint);
    connect(m_points, &PointChooser::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(&m_view->tables(), &TableViews::renameWanted, m_renaming, &PointRenaming::rename);
    connect(m_history, &ProjectHistory::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(m_history, &ProjectHistory::reached, this, [this](LwType type, qsizetype row) {
        if (type != m_view->current().CurrentType())
            m_view->enterType(type);
        if (PointTables *table = m_view->currentTable())
            table->showRow(row);
    });
    connect(&m_view->tables(), &TableViews::refused, this,
            [this](const QString &reason) { QMessageBox::warning(this, tr("Rename"), reason); });
}

void MainWindow::connectReading()
{
    connect(&m_view->tables(), &TableViews::made, m_controller, &ControllerPart::serve);
    connect(m_controller, &ControllerPart::settingsChosen, this,
            [this](const ReadingSettings &reading) {
                Settings settings = m_settings;
                settings.reading = reading;
                decide(settings);
            });
    connect(m_importing, &PointImporting::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
}

// The page goes when something else is shown.
void MainWindow::connectFirstSteps()
{
    connect(m_firstSteps, &FirstSteps::sampleWanted, this, &MainWindow::showSample);
    connect(m_firstSteps, &FirstSteps::projectWanted, m_life, &ProjectLife::choose);
    connect(m_firstSteps, &FirstSteps::keysWanted, this,
            [this] { menuBar()->findChild<HelpMenu *>()->showKeys(); });
    connect(m_firstSteps, &FirstSteps::closed, this, [this] {
        m_pages->setCurrentWidget(m_document->project() ? static_cast<QWidget *>(m_view) : m_start);
        if (m_document->project())
            m_view->current().setFocus();
    });
}

void MainWindow::showFirstSteps()
{
    m_pages->setCurrentWidget(m_firstSteps);
}

void MainWindow::showSample()
{
    const Project *project = m_document->project();
    if (project && QFileInfo(project->fileName()) == QFileInfo(m_sample)) {
        m_pages->setCurrentWidget(m_view);
        program().setFocus();
    } else if (m_saving->mayLeave()) {
        openForUser(m_sample);
    }
}

// The status bar speaks of what is in sight.
void MainWindow::showPage()
{
    const bool isView = m_pages->currentWidget() == m_view;
    showProgramInfo();
    m_position->setVisible(isView && !m_view->currentTable());
}

void MainWindow::connectSaving()
{
    connect(m_document, &ProjectDocument::tablesChanged, m_points, &PointChooser::refill);
    connect(m_document, &ProjectDocument::tablesChanged, m_values, &PointValues::takeProject);
    connect(m_document, &ProjectDocument::tablesChanged, m_view, &ProjectView::refresh);
    connect(m_saving, &ProjectSaving::settled, m_recovery, &RecoveryKeeper::drop);
    connect(m_saving, &ProjectSaving::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 10000); });
    connect(m_saving, &ProjectSaving::movedElsewhere, this, [this] {
        m_recovery->begin();
        m_recent->add(m_document->project()->fileName());
        showProgramInfo();
    });
    connect(m_recovery, &RecoveryKeeper::failed, this, [this](const QString &reason) {
        statusBar()->showMessage(tr("What you type cannot be kept for recovery: %1").arg(reason));
    });
    connect(m_recovery, &RecoveryKeeper::recovered, statusBar(), &QStatusBar::clearMessage);
}

void MainWindow::connectPages()
{
    connect(m_fault, &OpeningFault::projectWanted, this,
            [this](const QString &fileName) { openForUser(fileName); });
    connect(m_fault, &OpeningFault::versionBeforeWanted, this,
            [this](const QString &fileName) { openForUser(fileName, Version::Before); });
    connect(m_fault, &OpeningFault::choiceWanted, m_life, &ProjectLife::choose);
    connect(m_start, &StartPage::newWanted, m_life, &ProjectLife::create);
    connect(m_start, &StartPage::choiceWanted, m_life, &ProjectLife::choose);
    connect(m_start, &StartPage::projectWanted, m_life, &ProjectLife::openRecent);
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
        QMessageBox::warning(this, tr("Open Project"), error.Description());
        return;
    }
    m_recent->add(fileName);
    m_offer->makeAll();
}

void MainWindow::openForUser(const QString &fileName, Version version)
{
    try {
        openProject(fileName, version);
    } catch (const Error &error) {
        m_results->clear();
        m_pages->setCurrentWidget(m_fault);
        m_fault->show(fileName, error.Description());
        return;
    }
    m_recent->add(fileName);
    m_offer->makeAll();
}

void MainWindow::openAtStart(const QString &sample)
{
    const QString last = m_recent->fileAtStart();
    openForUser(last.isEmpty() ? sample : last);
    if (!last.isEmpty() && showsProject() && statusBar()->currentMessage().isEmpty())
        statusBar()->showMessage(tr("The project of the last time is open again."), 5000);
}

void MainWindow::openProject(const QString &fileName, Version version)
{
    auto project = version == Version::Before ? Project::versionBefore(fileName)
                                              : std::make_unique<Project>(fileName);
    takeProject(*project);
    m_document->setProject(std::move(project));
    m_points->refill();
    showTitle();
    showProgram();
    m_recovery->begin();
    if (m_recovery->isOpenElsewhere())
        statusBar()->showMessage(tr("Another workbench has this project open, too."), 10000);
}

void MainWindow::takeProject(Project &project)
{
    m_view->setProject(project);
    m_values->setProject(&project);
    m_export->setProject(&project);
    m_navigation->setProject(&project);
}

// The components go on with a project that has nothing.
void MainWindow::closeProject()
{
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
    m_programInfo->clear();
    m_position->clear();
    m_position->hide();
    m_pages->setCurrentWidget(m_start);
}

// The application's name is added where it is not all.
void MainWindow::showTitle()
{
    const Project *project = m_document->project();
    setWindowTitle(project ? project->name() + u"[*]"_s
                           : QGuiApplication::applicationDisplayName());
}

void MainWindow::keepNothing()
{
    m_recovery->keepNothing();
}

void MainWindow::showType(LwType type)
{
    m_view->showType(type);
}

void MainWindow::showProgram()
{
    m_results->clear();
    m_pages->setCurrentWidget(m_view);
    m_view->showType(dsCode);
    m_view->programs().clear();
    applyAppearance();
    const Project &project = *m_document->project();
    m_results->setPrograms(project.programs());
    for (const ProjectProgram &each : project.programs())
        m_view->programs().view(each.id).codeView()->openProgram(project.program(each.id));
    m_document->noteShown();
    m_analyses->takeList();
    takePoints();
    m_view->enterType(dsCode);
    showPosition();
    showProgramInfo();
}

void MainWindow::chooseSettings()
{
    const RichTextSettings project =
        m_document->project() ? m_document->project()->editor() : defaultColours();
    SettingsDialog dialog(m_settings, project, this);
    if (dialog.exec() == QDialog::Accepted)
        decide(dialog.settings());
}

void MainWindow::decide(const Settings &settings)
{
    if (settings == m_settings)
        return;
    setSettings(settings);
    Q_EMIT settingsChosen();
}

void MainWindow::setSettings(const Settings &settings)
{
    const Settings former = std::exchange(m_settings, settings);
    if (settings.language != former.language)
        m_languages.setLanguage(settings.language.value_or(QLocale::system()));
    useTheme(settings.theme);
    m_controller->setSettings(settings.reading);
    if (settings.look != former.look)
        applyAppearance();
}

// A change of theme is several of style and palette; the program is coloured once.
void MainWindow::applyAppearance()
{
    m_palette.stop();
    if (!m_document->project())
        return;
    const RichTextSettings shown = shownAppearance();
    for (const ProjectProgram &each : m_view->programs().list())
        m_view->programs().view(each.id).Init_RichTextBox(shown);
    m_export->setColours(PaperColours(m_document->project()->editor(), shown));
}

RichTextSettings MainWindow::shownAppearance() const
{
    const RichTextSettings paper =
        m_document->project() ? m_document->project()->editor() : defaultColours();
    return toldApart(legibleOn(palette(), m_settings.look.over(paper)), paper);
}

void MainWindow::showPosition()
{
    m_position->setText(program().GetPositionDisplay());
}

void MainWindow::showProgramInfo()
{
    const Project *project = m_document->project();
    if (m_pages->currentWidget() != m_view)
        m_programInfo->clear(); // not hidden: the bar does that for messages
    else if (project)
        m_programInfo->setText(
            tr("%1, lines: %2")
                .arg(QFileInfo(project->programFile(m_view->programs().current())).fileName(),
                     QString::number(program().RTextBox()->lineCount())));
}

// What the menus say is made anew; what the user has done stays.
void MainWindow::retranslate()
{
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));
    showTitle();
    m_results->retranslate();
    m_analyses->retranslate();
    m_opening->retranslate();
    m_controller->retranslate();
    m_firstSteps->retranslate();
    qDeleteAll(menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    menuBar()->clear();
    buildMenus();
    m_view->retranslate();
    m_fault->retranslate();
    m_start->retranslate();
    m_points->retranslate();
    showPosition();
    showProgramInfo();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_palette.start();
    QMainWindow::changeEvent(event);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(m_saving->mayLeave());
}

// The editor tells of the caret after keys; the mouse moves it without a word.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        showPosition();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace ORVTListview
