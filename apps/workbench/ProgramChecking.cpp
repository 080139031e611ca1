#include "ProgramChecking.h"

#include "CheckResults.h"
#include "CheckTexts.h"
#include "LiveAnalysis.h"
#include "StatementExport.h"
#include "project/ProjectDocument.h"

#include <ORVTListview/RichTextBox.h>

#include <QtCore/QSet>

#include <algorithm>

namespace ORVTListview {

ProgramChecking::ProgramChecking(const Program &program, const ProjectDocument &document,
                                 CheckResults &results, QWidget &window)
    : QObject(&window)
    , m_program(program)
    , m_document(document)
    , m_results(results)
    , m_window(window)
{
}

void ProgramChecking::analyse()
{
    m_results.showProblems(m_program.analysis.finished());
}

void ProgramChecking::compile()
{
    if (const auto statements = compiled())
        m_results.showStatements(*statements);
}

// None, and the problems are shown, for a program with errors.
std::optional<QList<ListedStatement>> ProgramChecking::compiled()
{
    const ProgramAnalysis &found = m_program.analysis.finished();
    const QSet<Fault> &faults = found.faults();
    const bool hasErrors = std::any_of(faults.cbegin(), faults.cend(), [](Fault fault) {
        return severityOf(fault) == ProblemSeverity::Error;
    });
    if (hasErrors) {
        m_results.showProblems(found);
        return {};
    }
    const RichTextBox &box = m_program.box;
    return listStatements(
        box.lineCount(), [&box](qint32 line) { return box.lineText(line); },
        m_program.analysis.words());
}

void ProgramChecking::exportListing()
{
    const Project *project = m_document.project();
    if (const auto statements = compiled())
        exportStatements(m_window, *statements, project ? project->programFile() : QString());
}

} // namespace ORVTListview
