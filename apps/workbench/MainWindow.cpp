#include "MainWindow.h"

#include "Appearance.h"
#include "CheckResults.h"
#include "EditMenu.h"
#include "LanguageMenu.h"
#include "Languages.h"
#include "ProgramSaving.h"
#include "ProgramText.h"
#include "editor/CodeWordList.h"
#include "editor/Vocabulary.h"
#include "project/ProgramCheck.h"
#include "project/Project.h"
#include "shared/ThreadState.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QCloseEvent>
#include <QtGui/QKeySequence>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>

#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

MainWindow::MainWindow(Languages &languages, QWidget *parent)
    : QMainWindow(parent)
    , m_languages(languages)
    , m_vocabulary(new ORVTreeview(this))
    , m_code(new ORVListView(this))
    , m_saving(new ProgramSaving(*m_code, *this))
    , m_results(new CheckResults(*m_code->GetImage(), this))
    , m_programInfo(new QLabel(this))
    , m_position(new QLabel(this))
{
    m_vocabulary->hide();
    m_code->setListviewType(dsCode);
    setCentralWidget(m_code);
    addDockWidget(Qt::BottomDockWidgetArea, m_results);
    resizeDocks({m_results}, {160}, Qt::Vertical);
    m_results->hide();
    buildMenus();
    buildStatusBar();
    connectEditor();
    // Queued: the menu that the language was chosen in is made anew.
    connect(&languages, &Languages::changed, this, &MainWindow::retranslate, Qt::QueuedConnection);
    resize(1000, 700);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    buildFileMenu();
    buildEditMenu();
    buildProgramMenu();
    buildViewMenu();
}

void MainWindow::buildFileMenu()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open Project…"), QKeySequence::Open, this, &MainWindow::chooseProject);
    file->addAction(tr("&Save Program"), QKeySequence::Save, m_saving, &ProgramSaving::save);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), this, &QWidget::close);
}

void MainWindow::buildEditMenu()
{
    auto *edit = new EditMenu(*m_code, menuBar());
    menuBar()->addMenu(edit);
    connect(edit, &EditMenu::acted, this, &MainWindow::showPosition);
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
    program->addSeparator();
    QAction *results = m_results->toggleViewAction();
    results->setText(tr("&Results"));
    program->addAction(results);
}

void MainWindow::buildViewMenu()
{
    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addMenu(new LanguageMenu(m_languages, view));
}

void MainWindow::buildStatusBar()
{
    m_programInfo->setContentsMargins(3, 0, 0, 0); // in line with the program
    statusBar()->addWidget(m_programInfo);
    statusBar()->addPermanentWidget(m_position);
}

void MainWindow::connectEditor()
{
    connect(m_code, &ORVListView::StatusUpdate, m_position, &QLabel::setText);
    connect(m_code, &ORVListView::QueryAnalyze, this, &MainWindow::analyse);
    connect(m_code, &ORVListView::QueryCompile, this, &MainWindow::compile);
    connect(m_code->RTextBox(), &QPlainTextEdit::blockCountChanged, this,
            &MainWindow::showProgramInfo);
    m_code->RTextBox()->viewport()->installEventFilter(this);
    connect(m_results, &CheckResults::chosen, this, &MainWindow::goTo);
}

void MainWindow::chooseProject()
{
    const QString folder = m_project ? QFileInfo(m_project->fileName()).path() : QString();
    const QString fileName =
        QFileDialog::getOpenFileName(this, tr("Open Project"), folder, tr("Projects (*.json)"));
    if (fileName.isEmpty() || !m_saving->mayLeave())
        return;
    try {
        openProject(fileName);
    } catch (const Error &error) {
        QMessageBox::warning(this, tr("Open Project"), error.Description());
    }
}

void MainWindow::openProject(const QString &fileName)
{
    auto former = std::exchange(m_project, std::make_unique<Project>(fileName));
    handOverVocabulary();
    setWindowTitle(m_project->name() + u"[*]"_s); // the application's name is added to it
    showProgram();
}

void MainWindow::handOverVocabulary()
{
    m_vocabulary->SetCollectionRenamable(this, m_project->points(dsVariable),
                                         m_project->points(dsConst), m_project->points(dsInput),
                                         m_project->points(dsOutput), m_project->points(dsNvi));
    m_vocabulary->setIsSqrtSupported(m_project->controller().isSqrtSupported ? u"true"_s
                                                                             : u"false"_s);
    m_vocabulary->setStringIndexCollection(m_project->indexedNames());
}

void MainWindow::showProgram()
{
    m_results->hide();
    m_code->ClearUndoHistory();
    m_code->setCodeText(QString());
    applyAppearance();
    const QString program = withWordsApart(m_project->program());
    m_code->setCodeText(program); // which is what undo ends at
    if (survivesRtf(program))
        m_code->setCodeTextRTF(m_code->GetColorText(program));
    else
        applyAppearance(); // colours what is shown
    m_code->RTextBox()->setSelStart(0);
    m_saving->setProject(m_project.get());
    m_code->setFocus();
    showPosition();
    showProgramInfo();
}

void MainWindow::applyAppearance()
{
    m_code->Init_RichTextBox(legibleOn(palette(), m_project->editor()));
}

ProgramReport MainWindow::checkShownProgram() const
{
    return checkProgram(m_code->CodeText(), threadPart<Vocabulary>(),
                        threadPart<CodeWordList>().index());
}

void MainWindow::analyse()
{
    m_results->showFindings(checkShownProgram().findings);
}

void MainWindow::compile()
{
    const ProgramReport report = checkShownProgram();
    if (report.findings.isEmpty())
        m_results->showWords(report.words);
    else
        m_results->showFindings(report.findings.first(1));
}

// The editor's own member counts lines with 16 bits.
void MainWindow::goTo(const QString &word, qint32 line)
{
    if (line <= std::numeric_limits<qint16>::max()) {
        QString text = word;
        auto number = static_cast<qint16>(line);
        m_code->HighLightText(text, number);
    } else {
        m_code->RTextBox()->setSelStart(m_code->RTextBox()->lineStart(line - 1));
        m_code->RTextBox()->ensureCursorVisible();
    }
    m_code->setFocus();
    showPosition();
}

void MainWindow::showPosition()
{
    m_position->setText(m_code->GetPositionDisplay());
}

void MainWindow::showProgramInfo()
{
    const QString file = m_project ? QFileInfo(m_project->programFile()).fileName() : QString();
    if (m_project)
        m_programInfo->setText(tr("%1, lines: %2").arg(file).arg(m_code->RTextBox()->lineCount()));
}

// The appearance is applied anew, which takes the caret to the start.
void MainWindow::followPalette()
{
    RichTextBox *box = m_code->RTextBox();
    const qint32 start = box->SelStart();
    const qint32 length = box->SelLength();
    applyAppearance();
    box->setSelStart(start);
    box->setSelLength(length);
    box->ensureCursorVisible();
}

// What the menus say is made anew; what the user has done stays.
void MainWindow::retranslate()
{
    m_results->retranslate();
    qDeleteAll(menuBar()->findChildren<QMenu *>(Qt::FindDirectChildrenOnly));
    menuBar()->clear();
    buildMenus();
    showPosition();
    showProgramInfo();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_project)
        followPalette();
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
