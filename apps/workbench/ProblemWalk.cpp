#include "ProblemWalk.h"

#include "ProgramAnalyses.h"
#include "ProjectView.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextCursor>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <tuple>
#include <utility>

namespace ORVTListview {
namespace {

bool go(CodeView &view, int step)
{
    return step > 0 ? view.nextProblem() : view.previousProblem();
}

bool hasProblemBeyond(const ORVListView &editor, int step)
{
    const QTextCursor caret = editor.RTextBox()->textCursor();
    const std::tuple here(caret.blockNumber() + 1, caret.positionInBlock());
    return std::ranges::any_of(editor.codeView()->problems(), [&](const Problem &problem) {
        const std::tuple place(problem.line, problem.from);
        return step > 0 ? place > here : place < here;
    });
}

// From the other end of the program, so that the walk goes round to its first problem.
bool enter(ProjectView &views, qint32 program, int step)
{
    views.enterProgram(program);
    RichTextBox &box = *views.program().RTextBox();
    box.moveCursor(step > 0 ? QTextCursor::End : QTextCursor::Start);
    return go(*views.program().codeView(), step);
}

// Nothing without a problem.
bool goToProblem(ProjectView &views, int step)
{
    const ProgramViews &programs = views.programs();
    const ProgramList &list = programs.list();
    const auto here = std::ranges::find(list, programs.current(), &ProjectProgram::id);
    const qsizetype from = here - list.cbegin();
    for (qsizetype i = 1; i < list.size() && !hasProblemBeyond(views.program(), step); ++i) {
        const qsizetype at = (from + i * step + list.size() * i) % list.size();
        if (!programs.view(list.at(at).id).codeView()->problems().isEmpty())
            return enter(views, list.at(at).id, step);
    }
    return go(*views.program().codeView(), step);
}

} // namespace

ProblemWalk::ProblemWalk(ProjectView &views, const ProgramAnalyses &analyses, QObject *parent)
    : QObject(parent)
    , m_views(views)
    , m_analyses(analyses)
{
    connect(&analyses, &ProgramAnalyses::analysed, this, &ProblemWalk::goOn);
}

void ProblemWalk::go(int step)
{
    m_wanted = 0;
    if (goToProblem(m_views, step)) {
        Q_EMIT moved();
    } else if (m_analyses.isDone()) {
        Q_EMIT told(tr("The programs have no problems."));
    } else {
        m_wanted = step;
        m_box = m_views.program().RTextBox();
        m_caret = m_box->textCursor().position();
        m_focus = QApplication::focusWidget();
    }
}

void ProblemWalk::giveUp()
{
    m_wanted = 0;
}

void ProblemWalk::goOn()
{
    if (m_wanted == 0 || !m_analyses.isDone())
        return;
    const int step = std::exchange(m_wanted, 0);
    const RichTextBox *box = m_views.program().RTextBox();
    if (box == m_box && box->textCursor().position() == m_caret &&
        QApplication::focusWidget() == m_focus && !QApplication::activeModalWidget())
        go(step);
}

} // namespace ORVTListview
