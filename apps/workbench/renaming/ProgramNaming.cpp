#include "workbench/renaming/ProgramNaming.h"

#include "project/ProjectDocument.h"
#include "workbench/ProjectView.h"
#include "workbench/renaming/NameQuestion.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>

#include <algorithm>

namespace ORVTListview {

ProgramNaming::ProgramNaming(ProjectDocument &document, ProjectView &views, QWidget &window)
    : QObject(&window)
    , m_document(document)
    , m_views(views)
    , m_window(window)
{
}

// Empty, too, where the project is another one by then.
QString ProgramNaming::askName(const QString &title, qint32 program, const QString &name)
{
    const QPointer<ProgramNaming> self(this);
    const Project *project = m_document.project();
    const auto fault = [&](const QString &typed) {
        const bool isSame = self && m_document.project() == project;
        return isSame ? project->programNameFault(program, typed) : QString();
    };
    const QString given =
        ORVTListview::askName(m_window, {title, tr("Name of the program:"), name, fault});
    return self && m_document.project() == project ? given : QString();
}

qsizetype ProgramNaming::currentIndex() const
{
    const ProgramList &list = m_document.project()->programs();
    const qint32 current = m_views.programs().current();
    return std::ranges::find(list, current, &ProjectProgram::id) - list.cbegin();
}

void ProgramNaming::add()
{
    if (!m_document.project())
        return;
    const QString name = askName(tr("Add Program"), 0, {});
    if (name.isEmpty())
        return;
    ProgramList list = m_document.project()->programs();
    const qint32 made = m_document.project()->makeProgram(name);
    list.append({made, name});
    m_document.carryOut(list);
    m_views.programs().view(made).codeView()->openProgram({});
    m_document.noteStepShown();
    m_views.enterProgram(made);
}

void ProgramNaming::rename()
{
    if (!m_document.project())
        return;
    const qsizetype index = currentIndex();
    const ProjectProgram program = m_document.project()->programs().at(index);
    const QString name = askName(tr("Rename Program"), program.id, program.name);
    if (name.isEmpty() || name == program.name ||
        m_document.project()->programs().value(index) != program)
        return;
    ProgramList list = m_document.project()->programs();
    list[index].name = name;
    m_document.carryOut(list);
}

bool ProgramNaming::canRemove() const
{
    return m_document.project() && m_document.project()->programs().size() > 1;
}

namespace {

// What is not saved is in no file.
QString questionOnRemoving(const ProjectProgram &program, const ProjectDocument &document)
{
    const QFileInfo file(document.project()->programFile(program.id));
    if (document.isProgramModified(program.id) || !file.exists())
        return ProgramNaming::tr("Remove the program %1 from the project?\n"
                                 "What is not saved of it comes back only with Undo.")
            .arg(program.name);
    return ProgramNaming::tr(
               "Remove the program %1 from the project?\nIts file %2 stays where it is.")
        .arg(program.name, file.fileName());
}

} // namespace

void ProgramNaming::remove()
{
    if (!canRemove())
        return;
    const Project *project = m_document.project();
    const ProjectProgram program = project->programs().at(currentIndex());
    const QPointer<ProgramNaming> self(this);
    const auto answer = QMessageBox::question(&m_window, tr("Remove Program"),
                                              questionOnRemoving(program, m_document));
    if (!self || answer != QMessageBox::Yes || m_document.project() != project)
        return;
    ProgramList list = project->programs();
    if (list.size() > 1 && list.removeOne(program))
        m_document.carryOut(list);
}

} // namespace ORVTListview
