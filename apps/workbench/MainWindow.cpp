#include "MainWindow.h"

#include "Appearance.h"
#include "CheckResults.h"
#include "CheckTexts.h"
#include "EditMenu.h"
#include "EditorViewMenu.h"
#include "LanguageMenu.h"
#include "Languages.h"
#include "LiveAnalysis.h"
#include "OpeningFault.h"
#include "OpeningProgress.h"
#include "PointCells.h"
#include "PointChooser.h"
#include "PointTables.h"
#include "PointValues.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "StatementExport.h"
#include "editor/rules/colouring/ColourTable.h"
#include "project/PointReferences.h"
#include "project/ProjectColumns.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/export/Exporting.h"
#include "workbench/help/FirstSteps.h"
#include "workbench/help/HelpMenu.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/saving/RecoveryOffer.h"
#include "workbench/settings/SettingsDialog.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtCore/QSet>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QApplication>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStackedWidget>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

MainWindow::MainWindow(Languages &languages, QWidget *parent)
    : QMainWindow(parent)
    , m_languages(languages)
    , m_points(new PointChooser(this))
    , m_pages(new QStackedWidget(this))
    , m_document(new ProjectDocument({[this] { return m_code->CodeText(); },
                                      [this] { return m_code->RTextBox()->TextLength(); }},
                                     this))
    , m_controller(new ControllerPart(*m_document, *this))
    , m_view(new ProjectView(*m_document, this))
    , m_fault(new OpeningFault(this))
    , m_firstSteps(new FirstSteps(this))
    , m_code(&m_view->list())
    , m_history(new ProjectHistory(*m_document, *m_code))
    , m_renaming(new PointRenaming(*m_document, *m_code, *this))
    , m_importing(new PointImporting(*m_document, *this))
    , m_saving(new ProjectSaving(*m_document, *this))
    , m_recovery(new RecoveryKeeper(*m_document, this))
    , m_offer(new RecoveryOffer(*m_document, *m_recovery, *m_code, *this))
    , m_export(new Exporting(*m_code, *this))
    , m_values(new PointValues(*m_code->codeView(), m_controller->reading(), this))
    , m_results(new CheckResults(this))
    , m_analysis(new LiveAnalysis(*m_code->codeView(), *m_code->RTextBox(), this))
    , m_navigation(new ProgramNavigation(*m_view, *m_analysis, *m_results, this))
    , m_programInfo(new QLabel(this))
    , m_opening(new OpeningProgress(*m_code->codeView(), this))
    , m_position(new QLabel(this))
{
    m_points->setPictures(*m_code->GetImage());
    addToolBar(m_points);
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_fault);
    m_pages->addWidget(m_firstSteps);
    setCentralWidget(m_pages);
    addDockWidget(Qt::BottomDockWidgetArea, m_results);
    resizeDocks({m_results}, {160}, Qt::Vertical);
    m_results->hide();
    EditorViewMenu::switchOn(*m_code->codeView());
    buildMenus();
    buildStatusBar();
    connectEditor();
    connectPoints();
    connectReading();
    connectFirstSteps();
    connectSaving();
    // Queued: the menu that the language was chosen in is made anew.
    connect(&languages, &Languages::changed, this, &MainWindow::retranslate, Qt::QueuedConnection);
    resize(1100, 700);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildProgramMenu();
    buildPointsMenu();
    m_controller->addMenu(*menuBar());
    buildViewMenu();
    buildHelpMenu();
}

void MainWindow::buildFileMenu()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open Project…"), QKeySequence::Open, this, &MainWindow::chooseProject);
    file->addAction(tr("&Save"), QKeySequence::Save, m_saving, &ProjectSaving::save);
    file->addAction(tr("Save Else&where…"), m_saving, &ProjectSaving::saveElsewhere);
    file->addSeparator();
    QAction *exports = file->addAction(tr("&Export…"), m_export, &Exporting::exportShown);
    QAction *print =
        file->addAction(tr("&Print…"), QKeySequence::Print, m_export, &Exporting::print);
    const auto follow = [this, exports, print] {
        const bool isProject = m_document->project() && m_pages->currentWidget() == m_view;
        exports->setEnabled(isProject);
        print->setEnabled(isProject && m_code->CurrentType() == dsCode);
    };
    connect(m_view, &ProjectView::shown, print, follow);
    connect(m_pages, &QStackedWidget::currentChanged, print, follow);
    follow();
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
}

void MainWindow::buildEditMenu()
{
    auto *edit = new EditMenu(*m_code, *m_history, m_export->colours(), menuBar());
    menuBar()->addMenu(edit);
    connect(edit, &EditMenu::acted, this, &MainWindow::showPosition);
    connect(m_document, &ProjectDocument::tablesChanged, edit, &EditMenu::refresh);
    connect(edit, &EditMenu::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
}

// In the editor these keys raise its events; the menu has them for the rest of the
// window.
void MainWindow::buildProgramMenu()
{
    QMenu *program = menuBar()->addMenu(tr("&Program"));
    program->addAction(tr("&Analyse"), QKeySequence(Qt::Key_F6), this, &MainWindow::analyse);
    program->addAction(tr("&Compile"), QKeySequence(Qt::CTRL | Qt::Key_F6), this,
                       &MainWindow::compile);
    program->addAction(tr("&Export Statements…"), this, &MainWindow::exportListing);
    program->addSeparator();
    m_navigation->fillMenu(*program);
    program->addSeparator();
    QAction *results = m_results->toggleViewAction();
    results->setText(tr("&Results"));
    program->addAction(results);
}

void MainWindow::buildPointsMenu()
{
    QMenu *points = menuBar()->addMenu(tr("P&oints"));
    QAction *read = points->addAction(tr("&Read Values"), QKeySequence(Qt::Key_F5), this, [this] {
        m_controller->reading().read(m_code->CurrentType());
    });
    QAction *rename = points->addAction(tr("Re&name"), &m_view->tables(), &PointTables::editName);
    rename->setShortcut(QKeySequence(Qt::Key_F2));
    rename->setShortcutContext(Qt::WidgetShortcut); // the table's own
    QAction *add = points->addAction(tr("&Add Point…"), m_renaming,
                                     [this] { m_renaming->add(m_code->CurrentType()); });
    QAction *remove = points->addAction(tr("Re&move Point"), m_renaming, [this] {
        m_renaming->remove(m_code->CurrentType(), m_view->tables().selectedPoint());
    });
    QAction *import = points->addAction(tr("&Import…"), this,
                                        [this] { m_importing->import(m_code->CurrentType()); });
    connect(points, &QMenu::aboutToShow, this, [this, read, add, remove, rename, import] {
        read->setEnabled(m_controller->reading().canRead(m_code->CurrentType()));
        const bool isTable = m_document->project() && m_code->CurrentType() != dsCode;
        const bool isPoint = isTable && m_view->tables().selectedPoint() >= 0;
        add->setEnabled(isTable);
        import->setEnabled(isTable);
        remove->setEnabled(isPoint);
        rename->setEnabled(isPoint && nameColumn(m_code->CurrentType()) >= 0);
    });
    points->addAction(tr("&Fit Columns"), &m_view->tables(), &PointTables::fitColumns);
    points->addSeparator();
    QAction *cells = points->addAction(tr("&Edit Cells"));
    cells->setCheckable(true);
    cells->setChecked(m_view->cells().isOn());
    connect(cells, &QAction::triggered, &m_view->cells(), &PointCells::setOn);
    QAction *overrides = points->addAction(tr("&Hardware Overrides"));
    overrides->setCheckable(true);
    connect(overrides, &QAction::triggered, &m_view->tables(), &PointTables::setShowsOverrides);
    connect(points, &QMenu::aboutToShow, overrides,
            [this, overrides] { overrides->setChecked(m_view->tables().showsOverrides()); });
}

void MainWindow::buildHelpMenu()
{
    auto *help = new HelpMenu(*menuBar());
    menuBar()->addMenu(help);
    connect(help, &HelpMenu::firstStepsWanted, this, &MainWindow::showFirstSteps);
}

void MainWindow::buildViewMenu()
{
    QMenu *view = menuBar()->addMenu(tr("&View"));
    auto *editor = new EditorViewMenu(*m_code->codeView(), view);
    view->addMenu(editor);
    connect(editor, &QMenu::triggered, this, &MainWindow::showPosition);
    auto *languages = new LanguageMenu(m_languages, view);
    view->addMenu(languages);
    connect(languages, &LanguageMenu::chosen, this, [this](const QLocale &language) {
        Settings settings = m_settings;
        settings.language = language;
        decide(settings);
    });
    view->addSeparator();
    view->addAction(tr("&Settings…"), QKeySequence(Qt::CTRL | Qt::Key_Comma), this,
                    &MainWindow::chooseSettings);
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

void MainWindow::connectEditor()
{
    connect(m_code, &ORVListView::StatusUpdate, m_position, &QLabel::setText);
    connect(m_code, &ORVListView::QueryAnalyze, this, &MainWindow::analyse);
    connect(m_code, &ORVListView::QueryCompile, this, &MainWindow::compile);
    connect(m_code->RTextBox(), &QPlainTextEdit::blockCountChanged, this,
            &MainWindow::showProgramInfo);
    m_code->RTextBox()->viewport()->installEventFilter(this);
    connect(m_code->codeView(), &CodeView::problemChosen, this, &MainWindow::showPosition);
    connect(m_code->RTextBox(), &QPlainTextEdit::selectionChanged, this, &MainWindow::showPosition);
    connectAnalysis();
}

void MainWindow::connectAnalysis()
{
    connect(m_analysis, &LiveAnalysis::analysed, this,
            [this] { m_results->followProblems(m_analysis->found()); });
    connect(m_analysis, &LiveAnalysis::linesReplaced, m_results, &CheckResults::moveLines);
    connect(m_navigation, &ProgramNavigation::moved, this, &MainWindow::showPosition);
    connect(m_navigation, &ProgramNavigation::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(m_document, &ProjectDocument::tablesChanged, this, &MainWindow::takePoints);
}

void MainWindow::takePoints()
{
    m_analysis->takeWords();
    m_analysis->setOtherUses(otherUsesOf(*m_document->project()));
}

void MainWindow::connectPoints()
{
    connect(m_view, &ProjectView::shown, this, &MainWindow::showPage);
    connect(m_pages, &QStackedWidget::currentChanged, this, &MainWindow::showPage);
    connect(m_points, &PointChooser::chosen, m_view, &ProjectView::takePoint);
    connect(m_points, &PointChooser::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(&m_view->tables(), &PointTables::renameWanted, m_renaming, &PointRenaming::rename);
    connect(m_history, &ProjectHistory::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(&m_view->tables(), &PointTables::refused, this,
            [this](const QString &reason) { QMessageBox::warning(this, tr("Rename"), reason); });
}

void MainWindow::connectReading()
{
    m_controller->serve(*m_code, m_view->tables());
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
    connect(m_firstSteps, &FirstSteps::projectWanted, this, &MainWindow::chooseProject);
    connect(m_firstSteps, &FirstSteps::keysWanted, this,
            [this] { menuBar()->findChild<HelpMenu *>()->showKeys(); });
    connect(m_firstSteps, &FirstSteps::closed, this, [this] {
        if (m_document->project()) {
            m_pages->setCurrentWidget(m_view);
            m_code->setFocus();
        } else {
            chooseProject();
        }
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
        m_code->setFocus();
    } else if (m_saving->mayLeave()) {
        openForUser(m_sample);
    }
}

// The status bar speaks of what is in sight.
void MainWindow::showPage()
{
    const bool isView = m_pages->currentWidget() == m_view;
    showProgramInfo();
    m_position->setVisible(isView && m_code->CurrentType() == dsCode);
}

void MainWindow::connectSaving()
{
    connect(m_code->RTextBox(), &RichTextBox::Change, m_document,
            &ProjectDocument::noteProgramChange);
    connect(m_document, &ProjectDocument::tablesChanged, m_points, &PointChooser::refill);
    connect(m_document, &ProjectDocument::tablesChanged, m_values, &PointValues::takeProject);
    connect(m_document, &ProjectDocument::tablesChanged, m_view, &ProjectView::refresh);
    connect(m_saving, &ProjectSaving::settled, m_recovery, &RecoveryKeeper::drop);
    connect(m_saving, &ProjectSaving::movedElsewhere, this, [this] {
        m_recovery->begin();
        showProgramInfo();
    });
    connect(m_recovery, &RecoveryKeeper::failed, this, [this](const QString &reason) {
        statusBar()->showMessage(tr("What you type cannot be kept for recovery: %1").arg(reason));
    });
    connect(m_recovery, &RecoveryKeeper::recovered, statusBar(), &QStatusBar::clearMessage);
    connect(m_fault, &OpeningFault::projectWanted, this,
            [this](const QString &fileName) { openForUser(fileName); });
    connect(m_fault, &OpeningFault::versionBeforeWanted, this,
            [this](const QString &fileName) { openForUser(fileName, Version::Before); });
    connect(m_fault, &OpeningFault::choiceWanted, this, &MainWindow::chooseProject);
}

void MainWindow::chooseProject()
{
    const Project *project = m_document->project();
    const QString folder = project ? QFileInfo(project->fileName()).path() : QString();
    const QString fileName =
        QFileDialog::getOpenFileName(this, tr("Open Project"), folder, tr("Projects (*.json)"));
    if (fileName.isEmpty() || !m_saving->mayLeave())
        return;
    if (project)
        openByHand(fileName);
    else
        openForUser(fileName);
}

// What is shown stays when the other one cannot be opened.
void MainWindow::openByHand(const QString &fileName)
{
    try {
        openProject(fileName);
    } catch (const Error &error) {
        m_document->noteProgramChange(); // it is still to be kept
        QMessageBox::warning(this, tr("Open Project"), error.Description());
        return;
    }
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
    m_offer->makeAll();
}

void MainWindow::openProject(const QString &fileName, Version version)
{
    auto project = version == Version::Before ? Project::versionBefore(fileName)
                                              : std::make_unique<Project>(fileName);
    m_view->setProject(*project);
    m_values->setProject(project.get());
    m_export->setProject(project.get());
    m_navigation->setProject(project.get());
    m_document->setProject(std::move(project));
    m_points->refill();
    setWindowTitle(m_document->project()->name() + u"[*]"_s); // the application's name is added
    showProgram();
    m_recovery->begin();
    if (m_recovery->isOpenElsewhere())
        statusBar()->showMessage(tr("Another workbench has this project open, too."), 10000);
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
    m_code->Clear();
    applyAppearance();
    m_code->codeView()->openProgram(m_document->project()->program());
    m_document->noteShown();
    takePoints();
    m_code->setFocus();
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
    if (settings.look != former.look && m_document->project())
        applyAppearance();
}

void MainWindow::applyAppearance()
{
    const RichTextSettings paper = m_document->project()->editor();
    const RichTextSettings shown =
        toldApart(legibleOn(palette(), m_settings.look.over(paper)), paper);
    m_code->Init_RichTextBox(shown);
    m_export->setColours(PaperColours(paper, shown));
}

void MainWindow::analyse()
{
    m_results->showProblems(m_analysis->finished());
}

void MainWindow::compile()
{
    if (const auto statements = compiled())
        m_results->showStatements(*statements);
}

// None, and the problems are shown, for a program with errors.
std::optional<QList<ListedStatement>> MainWindow::compiled()
{
    const ProgramAnalysis &found = m_analysis->finished();
    const QSet<Fault> &faults = found.faults();
    const bool hasErrors = std::any_of(faults.cbegin(), faults.cend(), [](Fault fault) {
        return severityOf(fault) == ProblemSeverity::Error;
    });
    if (hasErrors) {
        m_results->showProblems(found);
        return {};
    }
    const RichTextBox &box = *m_code->RTextBox();
    return listStatements(
        box.lineCount(), [&box](qint32 line) { return box.lineText(line); }, m_analysis->words());
}

void MainWindow::exportListing()
{
    if (const auto statements = compiled())
        exportStatements(*this, *statements,
                         m_document->project() ? m_document->project()->programFile() : QString());
}

void MainWindow::showPosition()
{
    m_position->setText(m_code->GetPositionDisplay());
}

void MainWindow::showProgramInfo()
{
    const Project *project = m_document->project();
    if (m_pages->currentWidget() != m_view)
        m_programInfo->clear(); // not hidden: the bar does that for messages
    else if (project)
        m_programInfo->setText(tr("%1, lines: %2")
                                   .arg(QFileInfo(project->programFile()).fileName(),
                                        QString::number(m_code->RTextBox()->lineCount())));
}

// What the menus say is made anew; what the user has done stays.
void MainWindow::retranslate()
{
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));
    m_results->retranslate();
    m_analysis->retranslate();
    m_opening->retranslate();
    m_controller->retranslate();
    m_firstSteps->retranslate();
    qDeleteAll(menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    menuBar()->clear();
    buildMenus();
    m_view->retranslate();
    m_fault->retranslate();
    m_points->retranslate();
    showPosition();
    showProgramInfo();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_document->project())
        applyAppearance();
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
