#include "ProgramSaving.h"

#include "project/Project.h"

#include <ORVTListview/Error.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QFileInfo>
#include <QtWidgets/QMessageBox>

namespace ORVTListview {

ProgramSaving::ProgramSaving(ORVListView &code, QWidget &window)
    : QObject(&window)
    , m_code(code)
    , m_window(window)
{
    connect(code.RTextBox(), &RichTextBox::Change, this,
            [this] { m_window.setWindowModified(m_project && isChanged()); });
}

void ProgramSaving::setProject(Project *project)
{
    m_project = project;
    m_savedText = m_code.CodeText();
    m_window.setWindowModified(false);
}

bool ProgramSaving::save()
{
    if (!m_project)
        return true;
    if (m_project->isProgramChangedOutside() && !mayOverwrite())
        return false;
    const QString text = m_code.CodeText();
    try {
        m_project->saveNames();
        m_project->saveProgram(text);
    } catch (const Error &error) {
        QMessageBox::warning(&m_window, tr("Save Program"), error.Description());
        return false;
    }
    m_savedText = text;
    m_window.setWindowModified(false);
    return true;
}

void ProgramSaving::noteNewNames()
{
    m_window.setWindowModified(isChanged());
}

bool ProgramSaving::mayLeave()
{
    if (!m_window.isWindowModified() || !isChanged())
        return true;
    const auto answer = QMessageBox::warning(
        &m_window, tr("Unsaved Changes"),
        tr("The program %1 has changes that are not saved.\nSave them?").arg(fileName()),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

bool ProgramSaving::mayOverwrite()
{
    const auto answer = QMessageBox::warning(
        &m_window, tr("Save Program"),
        tr("The file %1 has been changed elsewhere since it was opened.\nOverwrite those changes?")
            .arg(fileName()),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    return answer == QMessageBox::Yes;
}

QString ProgramSaving::fileName() const
{
    return QFileInfo(m_project->programFile()).fileName();
}

// The lengths alone mostly tell, so that a key costs the same in any program.
bool ProgramSaving::isChanged() const
{
    return (m_project && m_project->hasNewNames()) ||
           m_code.RTextBox()->TextLength() != m_savedText.size() ||
           m_code.CodeText() != m_savedText;
}

} // namespace ORVTListview
