#include "ProgramAnalyses.h"

#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <algorithm>

namespace ORVTListview {

ProgramAnalyses::ProgramAnalyses(ProgramViews &programs, QObject *parent)
    : QObject(parent)
    , m_programs(programs)
{
    programs.withEach(this, [this](qint32 program, ORVListView &view) {
        add(program, new LiveAnalysis(*view.codeView(), *view.RTextBox(), this));
    });
}

void ProgramAnalyses::add(qint32 program, LiveAnalysis *analysis)
{
    m_analyses.insert({program, analysis});
    analysis->takeWords();
    connect(analysis, &LiveAnalysis::analysed, this, [this, program] { noteAnalysed(program); });
    connect(analysis, &LiveAnalysis::linesReplaced, this,
            [this, program](const ReplacedLines &lines) { Q_EMIT linesReplaced(program, lines); });
}

const ProgramList &ProgramAnalyses::list() const
{
    return m_programs.list();
}

void ProgramAnalyses::noteAnalysed(qint32 program)
{
    if (list().size() > 1) {
        const OtherUses uses = of(program).found().uses();
        if (m_uses.value(program) != uses) {
            m_uses[program] = uses;
            share();
        }
    }
    Q_EMIT analysed();
}

// Each gets what the others have.
void ProgramAnalyses::share()
{
    for (const ProjectProgram &program : list()) {
        OtherUses others = m_tables;
        for (const ProjectProgram &other : list()) {
            if (other.id == program.id)
                continue;
            others.read += m_uses.value(other.id).read;
            others.written += m_uses.value(other.id).written;
        }
        of(program.id).setOtherUses(others);
    }
}

void ProgramAnalyses::takePoints(const OtherUses &tables)
{
    takeWords();
    m_tables = tables;
    share();
}

void ProgramAnalyses::takeWords()
{
    for (const auto &[program, analysis] : m_analyses)
        analysis->takeWords();
}

void ProgramAnalyses::takeList()
{
    m_uses.clear();
    if (list().size() > 1) {
        for (const ProjectProgram &program : list())
            m_uses[program.id] = of(program.id).found().uses();
    }
    share();
}

bool ProgramAnalyses::isDone() const
{
    return std::ranges::all_of(
        list(), [this](const ProjectProgram &program) { return of(program.id).found().isDone(); });
}

// Twice: what one tells of its points may come after another has been finished.
void ProgramAnalyses::finish()
{
    for (int round = 0; round < 2; ++round) {
        for (const ProjectProgram &program : list())
            of(program.id).finished();
    }
}

void ProgramAnalyses::retranslate()
{
    for (const auto &[program, analysis] : m_analyses)
        analysis->retranslate();
}

} // namespace ORVTListview
