#include "ProblemWalk.h"

#include "ProjectView.h"
#include "workbench/views/ProgramViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QTextCursor>

#include <algorithm>
#include <tuple>

namespace ORVTListview {
namespace {

void go(CodeView &view, int step)
{
    if (step > 0)
        view.nextProblem();
    else
        view.previousProblem();
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
void enter(ProjectView &views, qint32 program, int step)
{
    views.enterProgram(program);
    RichTextBox &box = *views.program().RTextBox();
    box.moveCursor(step > 0 ? QTextCursor::End : QTextCursor::Start);
    go(*views.program().codeView(), step);
}

} // namespace

void goToProblem(ProjectView &views, int step)
{
    const ProgramViews &programs = views.programs();
    const ProgramList &list = programs.list();
    const auto here = std::ranges::find(list, programs.current(), &ProjectProgram::id);
    const qsizetype from = here - list.cbegin();
    for (qsizetype i = 1; i < list.size() && !hasProblemBeyond(views.program(), step); ++i) {
        const qsizetype at = (from + i * step + list.size() * i) % list.size();
        if (!programs.view(list.at(at).id).codeView()->problems().isEmpty()) {
            enter(views, list.at(at).id, step);
            return;
        }
    }
    go(*views.program().codeView(), step);
}

} // namespace ORVTListview
