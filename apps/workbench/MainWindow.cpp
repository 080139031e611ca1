#include "MainWindow.h"

#include "Appearance.h"
#include "CheckResults.h"
#include "EditMenu.h"
#include "EditorViewMenu.h"
#include "Languages.h"
#include "LiveAnalysis.h"
#include "OpeningFault.h"
#include "OpeningProgress.h"
#include "PointChooser.h"
#include "PointValues.h"
#include "PointsMenu.h"
#include "ProgramChecking.h"
#include "ProgramMenu.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "ViewMenu.h"
#include "editor/rules/colouring/ColourTable.h"
#include "project/PointReferences.h"
#include "project/ProjectDocument.h"
#include "workbench/export/Exporting.h"
#include "workbench/help/HelpMenu.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/saving/RecoveryOffer.h"
#include "workbench/settings/SettingsDialog.h"
#include "workbench/views/Panes.h"
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
#include <QtWidgets/QFileDialog>
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
    , m_document(new ProjectDocument({[this] { return m_code->CodeText(); },
                                      [this] { return m_code->RTextBox()->TextLength(); }},
                                     this))
    , m_view(new ProjectView(*m_document, this))
    , m_fault(new OpeningFault(this))
    , m_code(&m_view->program())
    , m_history(new ProjectHistory(*m_document, *m_view))
    , m_renaming(new PointRenaming(*m_document, *m_code, *this))
    , m_saving(new ProjectSaving(*m_document, *this))
    , m_recovery(new RecoveryKeeper(*m_document, this))
    , m_offer(new RecoveryOffer(*m_document, *m_recovery, *m_code, *this))
    , m_export(new Exporting(*m_view, *this))
    , m_values(new PointValues(*m_code->codeView(), this))
    , m_results(new CheckResults(this))
    , m_analysis(new LiveAnalysis(*m_code->codeView(), *m_code->RTextBox(), this))
    , m_checking(
          new ProgramChecking({*m_analysis, *m_code->RTextBox()}, *m_document, *m_results, *this))
    , m_navigation(new ProgramNavigation(*m_view, *m_analysis, *m_results, this))
    , m_panes(new Panes(*this, *m_view, *m_points))
    , m_programInfo(new QLabel(this))
    , m_opening(new OpeningProgress(*m_code->codeView(), this))
    , m_position(new QLabel(this))
{
    m_points->setPictures(*m_code->GetImage());
    addToolBar(m_points);
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_fault);
    setCentralWidget(m_pages);
    addDockWidget(Qt::BottomDockWidgetArea, m_results);
    resizeDocks({m_results}, {160}, Qt::Vertical);
    m_results->hide();
    EditorViewMenu::switchOn(*m_code->codeView());
    buildMenus();
    buildStatusBar();
    connectEditor();
    connectPoints();
    connectSaving();
    // Queued: the menu that the language was chosen in is made anew.
    connect(&languages, &Languages::changed, this, &MainWindow::retranslate, Qt::QueuedConnection);
    m_palette.setSingleShot(true);
    m_palette.setInterval(0ms);
    connect(&m_palette, &QTimer::timeout, this, &MainWindow::applyAppearance);
    resize(1100, 700);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    menuBar()->addMenu(new ProgramMenu(*m_checking, *m_navigation, *m_results, menuBar()));
    menuBar()->addMenu(new PointsMenu(*m_view, *m_document, *m_renaming, *m_points, menuBar()));
    buildViewMenu();
    menuBar()->addMenu(new WindowMenu(m_view->workplace(), *m_panes, *m_results, menuBar()));
    menuBar()->addMenu(new HelpMenu(*menuBar()));
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
        print->setEnabled(isProject && !m_view->currentTable());
    };
    connect(m_view, &ProjectView::shown, print, follow);
    connect(m_pages, &QStackedWidget::currentChanged, print, follow);
    follow();
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
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

void MainWindow::buildViewMenu()
{
    auto *view = new ViewMenu(*m_code->codeView(), m_languages, menuBar());
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
}

void MainWindow::connectEditor()
{
    connect(m_code, &ORVListView::StatusUpdate, m_position, &QLabel::setText);
    connect(m_code, &ORVListView::QueryAnalyze, m_checking, &ProgramChecking::analyse);
    connect(m_code, &ORVListView::QueryCompile, m_checking, &ProgramChecking::compile);
    connect(m_code->RTextBox(), &QPlainTextEdit::blockCountChanged, this,
            &MainWindow::showProgramInfo);
    m_code->RTextBox()->viewport()->installEventFilter(this);
    connect(m_code->codeView(), &CodeView::problemChosen, m_view,
            [this] { m_view->enterType(dsCode); });
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
    connect(m_view, &ProjectView::shown, this,
            [this](LwType type) { m_position->setVisible(type == dsCode); });
    connect(m_points, &PointChooser::chosen, m_view, &ProjectView::takePoint);
    connect(m_points, &PointChooser::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(&m_view->tables(), &TableViews::readingStarted, this,
            [this] { statusBar()->showMessage(tr("Reading the values…")); });
    connect(&m_view->tables(), &TableViews::readingFinished, this,
            [this] { statusBar()->showMessage(tr("The values have been read."), 3000); });
    connect(&m_view->tables(), &TableViews::readingFinished, m_values, &PointValues::takeProject);
    connect(&m_view->tables(), &TableViews::renameWanted, m_renaming, &PointRenaming::rename);
    connect(m_history, &ProjectHistory::told, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(&m_view->tables(), &TableViews::refused, this,
            [this](const QString &reason) { QMessageBox::warning(this, tr("Rename"), reason); });
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
    if (settings.look != former.look)
        applyAppearance();
}

// A change of theme is several of style and palette; the program is coloured once.
void MainWindow::applyAppearance()
{
    m_palette.stop();
    if (!m_document->project())
        return;
    const RichTextSettings paper = m_document->project()->editor();
    const RichTextSettings shown =
        toldApart(legibleOn(palette(), m_settings.look.over(paper)), paper);
    m_code->Init_RichTextBox(shown);
    m_export->setColours(PaperColours(paper, shown));
}

void MainWindow::showPosition()
{
    m_position->setText(m_code->GetPositionDisplay());
}

void MainWindow::showProgramInfo()
{
    const Project *project = m_document->project();
    if (project)
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
