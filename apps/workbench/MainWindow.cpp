#include "MainWindow.h"

#include "Appearance.h"
#include "CaretInSight.h"
#include "CheckResults.h"
#include "Languages.h"
#include "OpeningProgress.h"
#include "PlainTexts.h"
#include "PointChooser.h"
#include "PointTables.h"
#include "PointValues.h"
#include "ProblemWalk.h"
#include "ProgramAnalyses.h"
#include "ProgramChecking.h"
#include "ProgramNavigation.h"
#include "ProjectView.h"
#include "WindowPages.h"
#include "WindowStatus.h"
#include "WordColours.h"
#include "editor/rules/colouring/ColourTable.h"
#include "project/PointReferences.h"
#include "project/ProjectDocument.h"
#include "project/controller/PointReading.h"
#include "workbench/export/Exporting.h"
#include "workbench/help/HelpMenu.h"
#include "workbench/importing/PointImporting.h"
#include "workbench/life/ProjectLife.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/reading/ControllerPart.h"
#include "workbench/renaming/PointRenaming.h"
#include "workbench/renaming/ProgramNaming.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/saving/ProjectSaving.h"
#include "workbench/saving/RecoveryKeeper.h"
#include "workbench/saving/RecoveryOffer.h"
#include "workbench/settings/SettingsDialog.h"
#include "workbench/views/CategoryMenu.h"
#include "workbench/views/Panes.h"
#include "workbench/views/ProgramViews.h"
#include "workbench/views/TabKey.h"
#include "workbench/views/TableMenu.h"
#include "workbench/views/TableViews.h"
#include "workbench/views/Workplace.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QStatusBar>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

// A program that comes into the list, or back into it. One that somebody else has put there has
// not been shown yet.
void showAnew(qint32 id, const ProjectDocument &document, ORVListView &view,
              const RichTextSettings &appearance)
{
    Project &project = *document.project();
    view.Init_RichTextBox(appearance);
    if (!project.shownProgram(id).isEmpty() || project.program(id).isEmpty())
        return;
    view.codeView()->openProgram(project.program(id));
    project.setShownProgram(id, document.program(id));
}

} // namespace

MainWindow::MainWindow(Languages &languages, QWidget *parent)
    : QMainWindow(parent)
    , m_languages(languages)
    , m_points(new PointChooser(this))
    , m_document(new ProjectDocument(
          {[this](qint32 id) { return m_view->programs().view(id).CodeText(); },
           [this](qint32 id) { return m_view->programs().view(id).RTextBox()->TextLength(); }},
          this))
    , m_controller(new ControllerPart(*m_document, *this))
    , m_view(new ProjectView(*m_document, this))
    , m_recent(new RecentProjects(this))
    , m_pages(new WindowPages(*m_view, *m_recent, this))
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
    , m_colours(new WordColours(m_view->programs(), this))
    , m_navigation(new ProgramNavigation(*m_view, *m_analyses, *m_results, this))
    , m_walk(new ProblemWalk(*m_view, *m_analyses, this))
    , m_panes(new Panes(*this, *m_view, *m_points))
    , m_status(new WindowStatus(*statusBar()))
{
    m_points->setPictures(*program().GetImage());
    addToolBar(m_points);
    setCentralWidget(m_pages);
    addDockWidget(Qt::BottomDockWidgetArea, m_results);
    resizeDocks({m_results}, {160}, Qt::Vertical);
    m_results->hide();
    buildMenus();
    connectPrograms();
    connectPoints();
    connectReading();
    connectSaving();
    connectPages();
    // Queued: the menu that the language was chosen in is made anew.
    connect(&languages, &Languages::changed, this, &MainWindow::retranslate, Qt::QueuedConnection);
    m_caret.setSingleShot(true);
    m_caret.setInterval(100ms); // whoever types is not kept waiting
    connect(&m_caret, &QTimer::timeout, this, &MainWindow::showPosition);
    m_palette.setSingleShot(true);
    m_palette.setInterval(0ms);
    connect(&m_palette, &QTimer::timeout, this, &MainWindow::applyAppearance);
    showTitle();
    resize(1100, 700);
}

MainWindow::~MainWindow() = default;

bool MainWindow::showsProject() const
{
    return m_document->project() && m_pages->showsProject();
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
    new CategoryMenu(*m_view, *m_naming);
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
    connect(&box, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        if (!m_caret.isActive())
            m_caret.start();
    });
    connect(&box, &RichTextBox::Change, m_document, &ProjectDocument::noteProgramChange);
    connect(&box, &RichTextBox::Change, m_results, &CheckResults::noteEdited);
    box.viewport()->installEventFilter(this);
    new CaretInSight(box);
    connect(list.codeView(), &CodeView::problemChosen, m_view,
            [this] { m_view->enterType(dsCode); });
    connect(list.codeView(), &CodeView::problemChosen, this, &MainWindow::showPosition);
    m_status->opening().add(*list.codeView());
}

void MainWindow::takePrograms()
{
    const ProgramList former = m_view->programs().list();
    m_view->takePrograms();
    for (const ProjectProgram &program : m_view->programs().list()) {
        if (std::ranges::find(former, program.id, &ProjectProgram::id) == former.cend())
            showAnew(program.id, *m_document, m_view->programs().view(program.id),
                     shownAppearance());
    }
    m_results->setPrograms(m_document->project()->programs());
    m_analyses->takeList();
    showProgramInfo();
    showPosition();
}

void MainWindow::connectAnalysis()
{
    connect(m_analyses, &ProgramAnalyses::analysed, this, [this] {
        m_navigation->followUses();
        m_results->followProblems(m_checking->problems());
    });
    connect(m_analyses, &ProgramAnalyses::linesReplaced, m_results, &CheckResults::moveLines);
    connect(m_navigation, &ProgramNavigation::moved, this, &MainWindow::showPosition);
    connect(m_navigation, &ProgramNavigation::told, m_status, &WindowStatus::tell);
    connect(m_walk, &ProblemWalk::moved, this, &MainWindow::showPosition);
    connect(m_walk, &ProblemWalk::told, m_status, &WindowStatus::tell);
    connect(m_document, &ProjectDocument::tablesChanged, this, &MainWindow::takePoints);
}

void MainWindow::takePoints()
{
    m_analyses->takePoints(otherUsesOf(*m_document->project()));
    m_colours->follow();
}

void MainWindow::connectPoints()
{
    connect(m_view, &ProjectView::shown, this, &MainWindow::showPage);
    connect(m_pages, &QStackedWidget::currentChanged, this, &MainWindow::showPage);
    connect(m_points, &PointChooser::chosen, m_view, &ProjectView::takePoint);
    connect(m_points, &PointChooser::told, m_status, &WindowStatus::tell);
    connect(&m_view->tables(), &TableViews::renameWanted, m_renaming, &PointRenaming::rename);
    connect(&m_view->tables(), &TableViews::pointWanted, m_renaming, &PointRenaming::append);
    connect(&m_view->tables(), &TableViews::pointWanted, this, &MainWindow::tellPlace);
    connect(m_history, &ProjectHistory::told, m_status, &WindowStatus::tell);
    connect(m_history, &ProjectHistory::went, m_status, &WindowStatus::tellOfStep);
    connect(m_history, &ProjectHistory::wentOn, m_status, &WindowStatus::takeBackStep);
    connect(m_history, &ProjectHistory::reached, this, &MainWindow::showRow);
    connect(m_renaming, &PointRenaming::added, this, [this](LwType type, qsizetype row) {
        if (m_view->currentTable()) // whoever adds one while writing goes on writing
            showRow(type, row);
    });
    connect(&m_view->tables(), &TableViews::refused, this,
            [this](const QString &reason) { PlainTexts::warn(*this, tr("Rename"), reason); });
}

// Points stand without gaps, whatever row the name was typed in.
void MainWindow::tellPlace(LwType type, const QString &name, qsizetype wanted)
{
    const Project *project = m_document->project();
    const qsizetype row = project ? project->rows(type).size() - 1 : wanted;
    if (row < wanted)
        m_status->tellLonger(tr("Rows are filled from the top: %1 is in row %2.")
                                 .arg(name, QString::number(row + 1)));
}

void MainWindow::showRow(LwType type, qsizetype row)
{
    if (type != m_view->current().CurrentType())
        m_view->enterType(type);
    if (PointTables *table = m_view->currentTable())
        table->showRow(row);
}

void MainWindow::connectReading()
{
    connect(&m_view->tables(), &TableViews::made, m_controller, &ControllerPart::serve);
    const auto *menu =
        new TableMenu({*m_view, *m_renaming, m_controller->reading(), *m_navigation}, this);
    connect(menu, &TableMenu::told, m_status, &WindowStatus::tell);
    connect(m_view, &ProjectView::trendWanted, m_controller, &ControllerPart::drawAll);
    connect(m_controller, &ControllerPart::settingsChosen, this,
            [this](const ReadingSettings &reading) {
                Settings settings = m_settings;
                settings.reading = reading;
                decide(settings);
            });
    connect(m_importing, &PointImporting::told, m_status, &WindowStatus::tell);
}

// The status bar speaks of what is in sight.
void MainWindow::showPage()
{
    m_view->workplace().putAside(!m_pages->showsProject());
    showTitle();
    showProgramInfo();
    showPosition();
    if (!m_pages->showsProject())
        m_status->takeBack(); // what was told of it
    m_status->setPositionVisible(m_pages->showsProject() && !m_view->currentTable());
}

void MainWindow::connectSaving()
{
    connect(m_document, &ProjectDocument::tablesChanged, m_points, &PointChooser::refill);
    connect(m_document, &ProjectDocument::tablesChanged, m_values, &PointValues::takeProject);
    connect(m_document, &ProjectDocument::tablesChanged, m_view, &ProjectView::refresh);
    connect(m_saving, &ProjectSaving::writingSeveral, m_recovery, &RecoveryKeeper::keepNow);
    connect(m_saving, &ProjectSaving::settled, m_recovery, &RecoveryKeeper::drop);
    connect(m_saving, &ProjectSaving::told, m_status, &WindowStatus::tellLonger);
    connect(m_saving, &ProjectSaving::movedElsewhere, this, [this] {
        m_recovery->begin();
        m_recent->add(m_document->project()->fileName());
        showProgramInfo();
    });
    connect(m_recovery, &RecoveryKeeper::failed, this, [this](const QString &reason) {
        m_status->tellLasting(tr("What you type cannot be kept for recovery: %1").arg(reason));
    });
    connect(m_recovery, &RecoveryKeeper::recovered, m_status, &WindowStatus::takeBack);
}

void MainWindow::connectPages()
{
    connect(m_pages, &WindowPages::projectWanted, this,
            [this](const QString &fileName) { openForUser(fileName); });
    connect(m_pages, &WindowPages::versionBeforeWanted, this,
            [this](const QString &fileName) { openForUser(fileName, Version::Before); });
    connect(m_pages, &WindowPages::choiceWanted, m_life, &ProjectLife::choose);
    connect(m_pages, &WindowPages::newWanted, m_life, &ProjectLife::create);
    connect(m_pages, &WindowPages::recentWanted, m_life, &ProjectLife::openRecent);
    connect(m_pages, &WindowPages::sampleWanted, this, &MainWindow::showSample);
    connect(m_pages, &WindowPages::keysWanted, this,
            [this] { menuBar()->findChild<HelpMenu *>()->showKeys(); });
    connect(m_pages, &WindowPages::firstStepsClosed, this, &MainWindow::leaveFirstSteps);
}

// The application's name is added where it is not all. A project that a page hides is named only
// where it has changes that are to be saved.
void MainWindow::showTitle()
{
    const Project *project = m_document->project();
    const bool isNamed = project && (m_pages->showsProject() || isWindowModified());
    const QString title = isNamed ? project->name() : QGuiApplication::applicationDisplayName();
    setWindowTitle(project ? title + u"[*]"_s : title);
}

void MainWindow::keepNothing()
{
    m_recovery->keepNothing();
}

void MainWindow::showType(LwType type)
{
    m_view->showType(type);
}

void MainWindow::chooseSettings()
{
    const RichTextSettings project =
        m_document->project() ? m_document->project()->editor() : defaultColours();
    SettingsDialog dialog(m_settings, project, TypingHelps::of(*m_view->program().codeView()),
                          this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_view->programs().forEach(
        [helps = dialog.typingHelps()](CodeView &view) { helps.into(view); });
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
    m_status->showPosition(m_pages->showsProject() ? program().GetPositionDisplay() : QString());
}

void MainWindow::showProgramInfo()
{
    const Project *project = m_document->project();
    if (!m_pages->showsProject())
        m_status->showProgram({}); // not hidden: the bar does that for messages
    else if (const PointTables *table = m_view->currentTable())
        m_status->showProgram(table->title());
    else if (project)
        m_status->showProgram(
            tr("%1, lines: %2")
                .arg(QFileInfo(project->programFile(m_view->programs().current())).fileName(),
                     QString::number(program().RTextBox()->lineCount())));
}

// What the menus say is made anew; what the user has done stays.
void MainWindow::retranslate()
{
    QApplication::setApplicationDisplayName(QCoreApplication::translate("main", "Workbench"));
    setWindowTitle({}); // the same one is not handed on with the new name of the program
    showTitle();
    m_results->retranslate();
    m_analyses->retranslate();
    m_status->retranslate();
    m_controller->retranslate();
    qDeleteAll(menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    menuBar()->clear();
    buildMenus();
    m_view->retranslate();
    m_pages->retranslate();
    m_points->retranslate();
    showPosition();
    showProgramInfo();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_palette.start();
    else if (event->type() == QEvent::ModifiedChange)
        showTitle();
    QMainWindow::changeEvent(event);
}

bool MainWindow::focusNextPrevChild(bool next)
{
    QWidget *to = nextByTab(*this, m_view->workplace(), next);
    if (to)
        to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return to;
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const bool mayLeave = m_saving->mayLeave();
    event->setAccepted(mayLeave);
    if (mayLeave)
        Q_EMIT leaving();
}

// The editor tells of the caret after keys; the mouse moves it without a word.
bool MainWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease)
        showPosition();
    return QMainWindow::eventFilter(watched, event);
}

} // namespace ORVTListview
