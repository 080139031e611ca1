#include "ProgramChecking.h"

#include "CheckTexts.h"
#include "ProgramAnalyses.h"
#include "StatementExport.h"
#include "project/ProjectDocument.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QSet>

#include <algorithm>

namespace ORVTListview {

ProgramChecking::ProgramChecking(const Programs &programs, const ProjectDocument &document,
                                 CheckResults &results, QWidget &window)
    : QObject(&window)
    , m_programs(programs)
    , m_document(document)
    , m_results(results)
    , m_window(window)
{
}

CheckResults::Problems ProgramChecking::problems() const
{
    CheckResults::Problems problems;
    for (const ProjectProgram &program : m_programs.views.list()) {
        const ProgramAnalysis &found = m_programs.analyses.of(program.id).found();
        const qsizetype room = ProgramAnalysis::mostProblems - problems.listed.size();
        for (ProgramProblem problem :
             found.problems().first(std::min(room, found.problems().size()))) {
            problem.program = program.id;
            problems.listed.append(problem);
        }
        problems.count += found.problemCount();
    }
    return problems;
}

void ProgramChecking::analyse()
{
    m_programs.analyses.finish();
    m_results.showProblems(problems());
}

void ProgramChecking::compile()
{
    if (const auto statements = compiled(m_programs.views.list()))
        m_results.showStatements(*statements);
}

bool ProgramChecking::hasErrors(const ProgramList &programs) const
{
    return std::ranges::any_of(programs, [this](const ProjectProgram &program) {
        return std::ranges::any_of(
            m_programs.analyses.of(program.id).found().faults(),
            [](Fault fault) { return severityOf(fault) == ProblemSeverity::Error; });
    });
}

QList<ListedStatement> ProgramChecking::statementsOf(qint32 program) const
{
    const RichTextBox &box = *m_programs.views.view(program).RTextBox();
    QList<ListedStatement> statements = listStatements(
        box.lineCount(), [&box](qint32 line) { return box.lineText(line); },
        m_programs.analyses.of(program).words());
    for (ListedStatement &statement : statements)
        statement.program = program;
    return statements;
}

// None, and the problems are shown, for programs with errors.
std::optional<QList<ListedStatement>> ProgramChecking::compiled(const ProgramList &programs)
{
    m_programs.analyses.finish();
    if (hasErrors(programs)) {
        m_results.showProblems(problems());
        return {};
    }
    QList<ListedStatement> statements;
    for (const ProjectProgram &program : programs)
        statements += statementsOf(program.id);
    return statements;
}

void ProgramChecking::exportListing()
{
    const Project *project = m_document.project();
    const qint32 current = m_programs.views.current();
    if (const auto statements = compiled({{current, {}}}))
        exportStatements(m_window, *statements,
                         project ? project->programFile(current) : QString());
}

} // namespace ORVTListview
