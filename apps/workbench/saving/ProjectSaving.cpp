#include "workbench/saving/ProjectSaving.h"

#include "project/ProjectDocument.h"
#include "project/ProjectError.h"
#include "project/ProjectFileName.h"
#include "workbench/FreeKeys.h"
#include "workbench/FrontWindow.h"
#include "workbench/PlainTexts.h"
#include "workbench/export/SaveAs.h"

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
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
    Attempt attempt;
    const QPointer<ProjectSaving> self(this);
    const ProgramList programs = project->programs();
    for (const ProjectProgram &program : programs) {
        if (m_document.isProgramModified(program.id) &&
            project->isProgramChangedOutside(program.id) &&
            !mayOverwrite(project->programFile(program.id)))
            return false;
        if (!self || m_document.project() != project)
            return false;
    }
    if (project->hasChangedTables() && project->isChangedOutside()) {
        if (!mayOverwrite(project->fileName()))
            return false;
        attempt.theirs = Project::Theirs::Overwritten;
    }
    return carryOut(attempt);
}

bool ProjectSaving::carryOut(const Attempt &attempt)
{
    const bool isElsewhere = !attempt.place.isEmpty();
    if (isElsewhere ? m_document.isModified() : changesSeveralFiles())
        Q_EMIT writingSeveral();
    Project::Saved saved;
    try {
        saved = isElsewhere ? m_document.saveAt(attempt.place, attempt.encoding)
                            : m_document.save(attempt.theirs, attempt.encoding);
    } catch (const Error &error) {
        return offerWayOut(error, attempt);
    }
    Q_EMIT settled();
    if (isElsewhere)
        Q_EMIT movedElsewhere();
    if (saved.notKept.isEmpty())
        Q_EMIT told(tr("Saved."));
    else
        Q_EMIT told(tr("Saved, but the version before cannot be kept: %1").arg(saved.notKept));
    return true;
}

// What is tried again goes to the same place.
bool ProjectSaving::offerWayOut(const Error &error, Attempt attempt)
{
    const bool isEncoding = error.Number() == TextNotEncodable;
    const bool isNoText = error.Number() == TextNotUtf8; // at no place
    const QPointer<ProjectSaving> self(this);
    const QPointer<QMessageBox> box(
        new QMessageBox(QMessageBox::Warning, tr("Save"), error.Description(),
                        QMessageBox::Cancel | QMessageBox::Retry, &frontWindow(m_window)));
    box->setTextFormat(Qt::PlainText);
    QPushButton *other =
        isNoText ? nullptr
                 : box->addButton(isEncoding ? tr("Save as &UTF-8") : tr("Save Else&where…"),
                                  QMessageBox::AcceptRole);
    if (other)
        box->setDefaultButton(other);
    giveFreeKeys(box->buttons());
    if (!isEncoding && !isNoText)
        box->setInformativeText(
            tr("Nothing is lost: what was typed stays in the window and is kept for recovery."));
    const int answer = box->exec();
    if (!self || !box)
        return false;
    const bool isOther = other && box->clickedButton() == other;
    delete box;
    if (answer == QMessageBox::Retry)
        return attempt.place.isEmpty() ? save() : carryOut(attempt);
    if (!isOther)
        return false;
    if (!isEncoding)
        return saveElsewhere();
    attempt.encoding = Project::Encoding::Utf8;
    return carryOut(attempt);
}

bool ProjectSaving::saveElsewhere()
{
    if (!m_document.project())
        return true;
    const QPointer<ProjectSaving> self(this);
    const QFileInfo now(m_document.project()->fileName());
    const QString fileName =
        askWhereToSave(m_window, tr("Save Elsewhere"),
                       {tr("Projects (*.orvt.json)"), tr("Other JSON files (*.json)")}, now.path(),
                       projectFileName(projectBaseName(now.fileName())));
    if (!self || fileName.isEmpty())
        return false;
    return carryOut({fileName});
}

// The names of the programs that have changes.
QStringList ProjectSaving::changedPrograms() const
{
    QStringList names;
    for (const ProjectProgram &program : m_document.project()->programs()) {
        if (m_document.isProgramModified(program.id))
            names.append(program.name);
    }
    return names;
}

bool ProjectSaving::changesSeveralFiles() const
{
    const qsizetype programs = changedPrograms().size();
    return programs > (m_document.project()->hasChangedTables() ? 0 : 1);
}

QString ProjectSaving::questionOnLeaving() const
{
    const QStringList programs = changedPrograms();
    const QString names = programs.join(QStringLiteral(", "));
    const bool isOne = programs.size() == 1;
    const QString project = m_document.project()->name();
    const TableSaving changes = m_document.project()->tableSaving();
    if (changes.programs != changes.savedPrograms)
        return tr("The project %1 has changes that are not saved.\nSave them?").arg(project);
    if (programs.isEmpty())
        return tr("The points of %1 have changes that are not saved.\nSave them?").arg(project);
    if (!m_document.project()->hasChangedTables())
        return (isOne ? tr("The program %1 has changes that are not saved.\nSave them?")
                      : tr("The programs %1 have changes that are not saved.\nSave them?"))
            .arg(names);
    return (isOne ? tr("The program %1 and the points of %2 have changes that are not saved.\n"
                       "Save them?")
                  : tr("The programs %1 and the points of %2 have changes that are not saved.\n"
                       "Save them?"))
        .arg(names, project);
}

bool ProjectSaving::mayLeave()
{
    if (!m_document.isModified()) {
        Q_EMIT settled(); // what was kept of something since taken back
        return true;
    }
    const QPointer<ProjectSaving> self(this);
    const auto answer =
        PlainTexts::ask(m_window, {tr("Unsaved Changes"), questionOnLeaving(),
                                   QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                   QMessageBox::Save, QMessageBox::Warning});
    if (!self)
        return false;
    if (answer == QMessageBox::Save)
        return save();
    if (answer == QMessageBox::Discard)
        Q_EMIT settled();
    return answer == QMessageBox::Discard;
}

bool ProjectSaving::mayOverwrite(const QString &fileName)
{
    const QPointer<ProjectSaving> self(this);
    const QString question =
        tr("The file %1 has been changed elsewhere since it was opened.\nOverwrite those changes?")
            .arg(QFileInfo(fileName).fileName());
    const auto answer =
        PlainTexts::ask(m_window, {tr("Save"), question, QMessageBox::Yes | QMessageBox::No,
                                   QMessageBox::No, QMessageBox::Warning});
    return self && answer == QMessageBox::Yes;
}

} // namespace ORVTListview
