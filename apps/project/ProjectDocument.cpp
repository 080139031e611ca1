#include "project/ProjectDocument.h"

#include "project/ProjectColumns.h"

#include <ORVTListview/Error.h>

#include <algorithm>
#include <utility>

namespace ORVTListview {

namespace {

constexpr qsizetype mostSteps = 1000;

// Rows of one place count as one that is changed.
RowChanges changesTo(const ProjectTables &from, const ProjectTables &to)
{
    RowChanges changes;
    for (const LwType type : projectTypes()) {
        const QList<ProjectRow> before = from.value(type);
        const QList<ProjectRow> after = to.value(type);
        const qsizetype common = std::min(before.size(), after.size());
        for (qsizetype i = 0; i < common; ++i) {
            if (!(before[i] == after[i]))
                changes.append({type, i, before[i], after[i]});
        }
        for (qsizetype i = before.size() - 1; i >= common; --i)
            changes.append({type, i, before[i], {}});
        for (qsizetype i = common; i < after.size(); ++i)
            changes.append({type, i, {}, after[i]});
    }
    return changes;
}

// The programs that are as they were `from` become as they are in `to`, in the same order.
void takeNames(ProgramList &list, const ProgramList &from, const ProgramList &to)
{
    for (ProjectProgram &program : list) {
        const qsizetype known = from.indexOf(program);
        program = known < 0 ? program : to.at(known);
    }
}

} // namespace

ProjectDocument::ProjectDocument(Editors editors, QObject *parent)
    : QObject(parent)
    , m_editors(std::move(editors))
{
}

ProjectDocument::~ProjectDocument() = default;

void ProjectDocument::setProject(std::unique_ptr<Project> project)
{
    m_steps.clear();
    m_done = 0;
    m_project = std::move(project);
    Q_EMIT projectReplaced();
}

Project &ProjectDocument::none()
{
    if (!m_none)
        m_none = Project::none();
    return *m_none;
}

void ProjectDocument::noteShown()
{
    for (const ProjectProgram &each : m_project->programs())
        m_project->setShownProgram(each.id, program(each.id));
    Q_EMIT changed();
}

void ProjectDocument::noteProgramChange()
{
    if (m_project)
        Q_EMIT changed();
}

ProgramTexts ProjectDocument::programs() const
{
    ProgramTexts texts;
    for (const ProjectProgram &each : m_project->programs())
        texts.insert(each.id, program(each.id));
    return texts;
}

// One text for all steps that know it.
ProgramState ProjectDocument::state() const
{
    ProgramState now{m_project->programs(), programs()};
    if (m_done == 0)
        return now;
    const ProgramTexts &former = m_steps.at(m_done - 1).after.texts;
    for (auto text = now.texts.begin(); text != now.texts.end(); ++text) {
        if (const auto same = former.constFind(text.key()); same != former.cend() && *same == *text)
            *text = *same;
    }
    return now;
}

bool ProjectDocument::isModified() const
{
    return m_project && (m_project->hasChangedTables() || isAnyProgramModified());
}

bool ProjectDocument::isAnyProgramModified() const
{
    return std::ranges::any_of(m_project->programs(), [this](const ProjectProgram &each) {
        return isProgramModified(each.id);
    });
}

bool ProjectDocument::isProgramModified(qint32 id) const
{
    return !isAt(id, m_project->shownProgram(id));
}

// The lengths alone mostly tell, so that a key costs the same in any program.
bool ProjectDocument::isAt(qint32 id, const QString &text) const
{
    return m_editors.length(id) == text.size() && program(id) == text;
}

void ProjectDocument::carryOut(ProjectStep step)
{
    m_steps.resize(m_done);
    if (m_done == mostSteps)
        m_steps.removeFirst();
    m_steps.append(std::move(step));
    m_done = m_steps.size();
    const ProjectStep done = m_steps.constLast();
    setPrograms(done.after.list);
    apply(done.rows);
    Q_EMIT stepCarriedOut();
}

void ProjectDocument::carryOut(const RowChanges &rows)
{
    const ProgramState now = state();
    carryOut(ProjectStep{rows, now, now});
}

void ProjectDocument::carryOut(const ProgramList &list)
{
    ProgramState now = state();
    ProjectStep step{{}, now, now};
    step.after.list = list;
    carryOut(step);
}

void ProjectDocument::setPrograms(const ProgramList &list)
{
    if (m_project->programs() == list)
        return;
    m_project->setPrograms(list);
    Q_EMIT programListChanged();
}

void ProjectDocument::noteStepShown()
{
    if (m_done == 0)
        return;
    m_steps[m_done - 1].after = state();
    Q_EMIT stepCarriedOut();
    Q_EMIT changed();
}

const ProjectStep *ProjectDocument::next(Way way, qint32 program) const
{
    const qsizetype index = way == Way::Back ? m_done - 1 : m_done;
    if (index < 0 || index >= m_steps.size())
        return nullptr;
    const ProjectStep &step = m_steps.at(index);
    const ProgramState &from = way == Way::Back ? step.after : step.before;
    if (program == 0)
        return step.isOfTablesAlone() || obstacle(step, way) == 0 ? &step : nullptr;
    const auto text = from.texts.constFind(program);
    return text != from.texts.cend() && isAt(program, *text) ? &step : nullptr;
}

// One that leaves the list takes what was typed in it along.
qint32 ProjectDocument::obstacle(const ProjectStep &step, Way way) const
{
    const ProgramState &from = way == Way::Back ? step.after : step.before;
    const ProgramState &to = way == Way::Back ? step.before : step.after;
    QList<qint32> touched = step.programs();
    for (const ProjectProgram &program : from.list) {
        if (std::ranges::find(to.list, program.id, &ProjectProgram::id) == to.list.cend())
            touched.append(program.id);
    }
    const auto other =
        std::ranges::find_if(touched, [&](qint32 id) { return !isAt(id, from.texts.value(id)); });
    return other == touched.cend() ? 0 : *other;
}

bool ProjectDocument::restoreTables(const QByteArray &json)
{
    try {
        const ProjectContents contents =
            readContents(JsonPlace::parse(json, m_project->fileName()));
        setPrograms(m_project->listOf(contents.programs));
        apply(changesTo(m_project->tables(), contents.rows));
        return true;
    } catch (const Error &) {
        return false;
    }
}

void ProjectDocument::go(Way way)
{
    const bool isBack = way == Way::Back;
    const ProjectStep step = m_steps.at(isBack ? m_done - 1 : m_done);
    m_done += isBack ? -1 : 1;
    setPrograms(isBack ? step.before.list : step.after.list);
    apply(isBack ? reversed(step.rows) : step.rows);
}

void ProjectDocument::apply(const RowChanges &changes)
{
    m_project->apply(changes);
    if (!changes.isEmpty())
        Q_EMIT tablesChanged();
    Q_EMIT changed();
}

Project::Saved ProjectDocument::save(Project::Theirs theirs, Project::Encoding encoding)
{
    const ProgramList former = m_project->programs();
    Project::Saved saved = m_project->save(programs(), theirs, encoding);
    if (saved.takesOver) {
        m_steps.clear();
        m_done = 0;
        if (m_project->programs() != former)
            Q_EMIT programListChanged();
        Q_EMIT tablesChanged();
    }
    Q_EMIT changed();
    return saved;
}

Project::Saved ProjectDocument::saveAt(const QString &fileName, Project::Encoding encoding)
{
    const ProgramList former = m_project->programs();
    Project::Saved saved = m_project->saveAt(fileName, programs(), encoding);
    for (ProjectStep &step : m_steps) {
        takeNames(step.before.list, former, m_project->programs());
        takeNames(step.after.list, former, m_project->programs());
    }
    Q_EMIT programListChanged();
    Q_EMIT changed();
    return saved;
}

} // namespace ORVTListview
