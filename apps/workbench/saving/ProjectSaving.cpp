#include "saving/ProjectSaving.h"

#include "project/ProjectDocument.h"
#include "project/ProjectError.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace ORVTListview {

ProjectSaving::ProjectSaving(ProjectDocument &document, QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_window(window)
{
    connect(&document, &ProjectDocument::changed, this,
            [this] { m_window.setWindowModified(m_document.isModified()); });
}

bool ProjectSaving::save()
{
    const Project *project = m_document.project();
    if (!project)
        return true;
    bool overwrites = false;
    for (const bool isProgram : {true, false}) {
        const bool isChanged = isProgram
                                   ? project->isProgramChangedOutside()
                                   : project->hasChangedTables() && project->isChangedOutside();
        if (!isChanged)
            continue;
        if (!mayOverwrite(isProgram ? project->programFile() : project->fileName()))
            return false;
        overwrites = true;
    }
    return trySaving(overwrites);
}

bool ProjectSaving::trySaving(bool overwrites)
{
    try {
        m_document.save(overwrites ? Project::Theirs::Overwritten : Project::Theirs::Kept);
    } catch (const Error &error) {
        return offerWayOut(error);
    }
    Q_EMIT settled();
    return true;
}

bool ProjectSaving::offerWayOut(const Error &error)
{
    QMessageBox box(QMessageBox::Warning, tr("Save"), error.Description(),
                    QMessageBox::Cancel | QMessageBox::Retry, &m_window);
    const bool isEncoding = error.Number() == TextNotEncodable;
    QPushButton *other = box.addButton(isEncoding ? tr("Save as &UTF-8") : tr("Save Else&where…"),
                                       QMessageBox::AcceptRole);
    box.setDefaultButton(other);
    if (!isEncoding)
        box.setInformativeText(
            tr("Nothing is lost: what was typed stays in the window and is kept for recovery."));
    const int answer = box.exec();
    if (answer == QMessageBox::Retry)
        return save();
    if (box.clickedButton() != other)
        return false;
    if (!isEncoding)
        return saveElsewhere();
    m_document.project()->useUtf8();
    return trySaving(true);
}

bool ProjectSaving::saveElsewhere()
{
    if (!m_document.project())
        return true;
    const QString fileName = QFileDialog::getSaveFileName(
        &m_window, tr("Save Elsewhere"), m_document.project()->fileName(), tr("Projects (*.json)"));
    if (fileName.isEmpty())
        return false;
    try {
        m_document.saveAt(fileName);
    } catch (const Error &error) {
        return offerWayOut(error);
    }
    Q_EMIT settled();
    Q_EMIT movedElsewhere();
    return true;
}

bool ProjectSaving::mayLeave()
{
    if (!m_document.isModified())
        return true;
    const QString file = QFileInfo(m_document.project()->programFile()).fileName();
    const QString text =
        m_document.isProgramModified()
            ? tr("The program %1 has changes that are not saved.\nSave them?").arg(file)
            : tr("The points of %1 have changes that are not saved.\nSave them?")
                  .arg(m_document.project()->name());
    const auto answer = QMessageBox::warning(
        &m_window, tr("Unsaved Changes"), text,
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Save)
        return save();
    if (answer == QMessageBox::Discard)
        Q_EMIT settled();
    return answer == QMessageBox::Discard;
}

bool ProjectSaving::mayOverwrite(const QString &fileName)
{
    const auto answer = QMessageBox::warning(
        &m_window, tr("Save"),
        tr("The file %1 has been changed elsewhere since it was opened.\nOverwrite those changes?")
            .arg(QFileInfo(fileName).fileName()),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

} // namespace ORVTListview
