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

} // namespace

ProjectDocument::ProjectDocument(Editor editor, QObject *parent)
    : QObject(parent)
    , m_editor(std::move(editor))
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
    m_project->setShownProgram(program());
    Q_EMIT changed();
}

void ProjectDocument::noteProgramChange()
{
    if (m_project)
        Q_EMIT changed();
}

bool ProjectDocument::isModified() const
{
    return m_project && (m_project->hasChangedTables() || isProgramModified());
}

// The lengths alone mostly tell, so that a key costs the same in any program.
bool ProjectDocument::isProgramModified() const
{
    const QString &saved = m_project->shownProgram();
    return m_editor.length() != saved.size() || program() != saved;
}

void ProjectDocument::carryOut(ProjectStep step)
{
    m_steps.resize(m_done);
    if (m_done == mostSteps)
        m_steps.removeFirst();
    m_steps.append(std::move(step));
    m_done = m_steps.size();
    apply(m_steps.constLast().rows);
}

void ProjectDocument::carryOut(const RowChanges &rows)
{
    QString now = program();
    if (m_done > 0 && m_steps.at(m_done - 1).programAfter == now)
        now = m_steps.at(m_done - 1).programAfter; // one text for all of them
    carryOut(ProjectStep{rows, now, now});
}

void ProjectDocument::noteStepShown()
{
    if (m_done == 0)
        return;
    m_steps[m_done - 1].programAfter = program();
    Q_EMIT changed();
}

const ProjectStep *ProjectDocument::next(Way way, Among among) const
{
    const qsizetype index = way == Way::Back ? m_done - 1 : m_done;
    if (index < 0 || index >= m_steps.size())
        return nullptr;
    const ProjectStep &step = m_steps.at(index);
    if (among == Among::TablesAlone && step.isOfTablesAlone())
        return &step;
    const QString &from = way == Way::Back ? step.programAfter : step.programBefore;
    return m_editor.length() == from.size() && program() == from ? &step : nullptr;
}

bool ProjectDocument::restoreTables(const QByteArray &json)
{
    try {
        const ProjectTables tables =
            readContents(JsonPlace::parse(json, m_project->fileName())).rows;
        apply(changesTo(m_project->tables(), tables));
        return true;
    } catch (const Error &) {
        return false;
    }
}

void ProjectDocument::go(Way way)
{
    const bool isBack = way == Way::Back;
    const RowChanges &rows = m_steps.at(isBack ? m_done - 1 : m_done).rows;
    m_done += isBack ? -1 : 1;
    apply(isBack ? reversed(rows) : rows);
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
    Project::Saved saved = m_project->save(program(), theirs, encoding);
    if (saved.takesOver) {
        m_steps.clear();
        m_done = 0;
        Q_EMIT tablesChanged();
    }
    Q_EMIT changed();
    return saved;
}

Project::Saved ProjectDocument::saveAt(const QString &fileName, Project::Encoding encoding)
{
    Project::Saved saved = m_project->saveAt(fileName, program(), encoding);
    Q_EMIT changed();
    return saved;
}

} // namespace ORVTListview
