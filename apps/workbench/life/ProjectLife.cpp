#include "workbench/life/ProjectLife.h"

#include "base/FilePlace.h"
#include "project/ProjectDocument.h"
#include "workbench/MainWindow.h"
#include "workbench/PlainTexts.h"
#include "workbench/life/NewProjectDialog.h"
#include "workbench/life/RecentProjects.h"
#include "workbench/saving/ProjectSaving.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QFileDialog>

namespace ORVTListview {

ProjectLife::ProjectLife(const Parts &parts)
    : QObject(&parts.window)
    , m_parts(parts)
{
}

// Beside the project of now, or of the last time; the sample's folder is the program's, not
// the user's.
QString ProjectLife::folder() const
{
    const Project *project = m_parts.document.project();
    QStringList files = m_parts.recent.files();
    if (project)
        files.prepend(project->fileName());
    const QString sample = m_parts.window.sample();
    for (const QString &file : std::as_const(files)) {
        QString beside = QFileInfo(file).path();
        if (!file.isEmpty() && !isOneFile(file, sample) && QFileInfo(beside).isDir())
            return beside;
    }
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo(documents).isDir() ? documents : QDir::homePath(); // no name to open
}

// While a dialog is open the window may go.
void ProjectLife::create()
{
    const QPointer<ProjectLife> self(this);
    const QPointer<NewProjectDialog> dialog(new NewProjectDialog(folder(), &m_parts.window));
    const bool isWanted = dialog->exec() == QDialog::Accepted;
    const QString fileName = dialog ? dialog->created() : QString();
    delete dialog;
    if (self && isWanted)
        open(fileName);
}

void ProjectLife::choose()
{
    const QPointer<ProjectLife> self(this);
    const QString fileName = QFileDialog::getOpenFileName(
        &m_parts.window, tr("Open Project"), folder(), tr("Projects (*.orvt.json *.json)"));
    if (self && !fileName.isEmpty())
        open(fileName);
}

void ProjectLife::open(const QString &fileName)
{
    if (m_parts.saving.mayLeave())
        m_parts.window.openInPlace(fileName);
}

void ProjectLife::openRecent(const QString &fileName)
{
    if (QFileInfo(fileName).isFile()) {
        open(fileName);
        return;
    }
    const QPointer<ProjectLife> self(this);
    const auto answer = PlainTexts::ask(
        m_parts.window,
        {tr("Open Project"),
         tr("%1 is not there any more, or not at the moment.\nTake it off the list?")
             .arg(QDir::toNativeSeparators(fileName)),
         QMessageBox::Yes | QMessageBox::No, QMessageBox::No});
    if (self && answer == QMessageBox::Yes)
        m_parts.recent.remove(fileName);
}

void ProjectLife::close()
{
    if (m_parts.document.project() && m_parts.saving.mayLeave())
        m_parts.window.closeProject();
}

} // namespace ORVTListview
