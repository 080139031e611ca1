#include "workbench/renaming/ProgramNaming.h"

#include "project/ProjectDocument.h"
#include "workbench/PlainTexts.h"
#include "workbench/ProjectView.h"
#include "workbench/renaming/NameQuestion.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>

#include <QtCore/QFileInfo>
#include <QtCore/QPointer>

#include <algorithm>

namespace ORVTListview {

namespace {

// With the number 0 for none.
ProjectProgram programOf(const ProgramList &list, qint32 program)
{
    const auto found = std::ranges::find(list, program, &ProjectProgram::id);
    return found == list.cend() ? ProjectProgram() : *found;
}

} // namespace

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

ProgramList ProgramNaming::list() const
{
    return m_document.project() ? m_document.project()->programs() : ProgramList();
}

qint32 ProgramNaming::current() const
{
    return m_views.programs().current();
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

void ProgramNaming::rename(qint32 program)
{
    const ProjectProgram named = programOf(list(), program);
    if (named.id > 0)
        giveName(named, askName(tr("Rename Program"), program, named.name));
}

// What was typed stays for correction.
void ProgramNaming::renameTo(qint32 program, const QString &wanted)
{
    const ProjectProgram named = programOf(list(), program);
    if (named.id == 0 || wanted == named.name)
        return;
    const bool isPossible = m_document.project()->programNameFault(program, wanted).isEmpty();
    giveName(named, isPossible ? wanted : askName(tr("Rename Program"), program, wanted));
}

// Unless it has another one by now.
void ProgramNaming::giveName(const ProjectProgram &program, const QString &name)
{
    if (name.isEmpty() || name == program.name)
        return; // the window may be gone
    ProgramList changed = list();
    const qsizetype index = changed.indexOf(program);
    if (index < 0)
        return;
    changed[index].name = name;
    m_document.carryOut(changed);
}

bool ProgramNaming::canRemove() const
{
    return list().size() > 1;
}

bool ProgramNaming::canMove(qint32 program, int by) const
{
    const ProgramList now = list();
    const qsizetype index = now.indexOf(programOf(now, program));
    return index >= 0 && index + by >= 0 && index + by < now.size();
}

void ProgramNaming::move(qint32 program, int by)
{
    if (!canMove(program, by))
        return;
    ProgramList moved = list();
    const qsizetype index = moved.indexOf(programOf(moved, program));
    moved.move(index, index + by);
    m_document.carryOut(moved);
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

void ProgramNaming::remove(qint32 program)
{
    const ProjectProgram removed = programOf(list(), program);
    if (!canRemove() || removed.id == 0)
        return;
    const Project *project = m_document.project();
    const QPointer<ProgramNaming> self(this);
    const auto answer =
        PlainTexts::ask(m_window, {tr("Remove Program"), questionOnRemoving(removed, m_document)});
    if (!self || answer != QMessageBox::Yes || m_document.project() != project)
        return;
    ProgramList left = list();
    if (left.size() > 1 && left.removeOne(removed))
        m_document.carryOut(left);
}

} // namespace ORVTListview
