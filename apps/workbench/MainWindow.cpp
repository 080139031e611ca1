#include "MainWindow.h"

#include "Appearance.h"
#include "project/Project.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QEvent>
#include <QtCore/QFileInfo>
#include <QtGui/QKeySequence>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QStatusBar>

namespace ORVTListview {

using namespace Qt::StringLiterals;

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_vocabulary(new ORVTreeview(this))
    , m_code(new ORVListView(this))
    , m_programInfo(new QLabel(this))
{
    m_vocabulary->hide();
    m_code->setListviewType(dsCode);
    setCentralWidget(m_code);
    statusBar()->addPermanentWidget(m_programInfo);
    buildMenus();
    resize(960, 700);
}

MainWindow::~MainWindow() = default;

void MainWindow::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open Project…"), QKeySequence::Open, this, &MainWindow::chooseProject);
    file->addSeparator();
    file->addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
}

void MainWindow::chooseProject()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open Project"), m_project ? QFileInfo(m_project->fileName()).path() : QString(),
        tr("Projects (*.json)"));
    if (!fileName.isEmpty())
        openProject(fileName);
}

bool MainWindow::openProject(const QString &fileName)
{
    try {
        auto project = std::make_unique<Project>(fileName);
        m_project.swap(project);
    } catch (const Error &error) {
        QMessageBox::warning(this, tr("Open Project"), error.Description());
        return false;
    }
    m_vocabulary->SetCollectionRenamable(this, m_project->points(dsVariable),
                                         m_project->points(dsConst), m_project->points(dsInput),
                                         m_project->points(dsOutput), m_project->points(dsNvi));
    m_vocabulary->setIsSqrtSupported(m_project->controller().isSqrtSupported ? u"true"_s
                                                                             : u"false"_s);
    m_vocabulary->setStringIndexCollection(m_project->indexedNames());
    setWindowTitle(m_project->name()); // the application's name is added to it
    showProgram();
    return true;
}

void MainWindow::showProgram()
{
    m_code->setCodeText(QString());
    applyAppearance();
    m_code->setCodeTextRTF(m_code->GetColorText(m_project->program()));
    m_code->RTextBox()->setSelStart(0);
    m_code->setFocus();
    const qsizetype lines = m_project->program().count(u"\r\n"_s) + 1;
    m_programInfo->setText(
        tr("%1, %2 lines").arg(QFileInfo(m_project->programFile()).fileName()).arg(lines));
}

void MainWindow::applyAppearance()
{
    m_code->Init_RichTextBox(legibleOn(palette(), m_project->editor()));
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange && m_project)
        applyAppearance();
    QMainWindow::changeEvent(event);
}

} // namespace ORVTListview
