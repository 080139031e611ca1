#include "workbench/renaming/ProjectHistory.h"

#include "base/TextPiece.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/ProjectView.h"
#include "workbench/views/ProgramViews.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QStringList>

#include <algorithm>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

struct Difference
{
    TextPiece piece; // of the text of now
    QString text;    // that takes its place
};

// Whole lines.
Difference difference(const QString &now, const QString &program)
{
    const qsizetype most = std::min(now.size(), program.size());
    qsizetype head =
        std::mismatch(now.cbegin(), now.cbegin() + most, program.cbegin()).first - now.cbegin();
    head = head == 0 ? 0 : now.lastIndexOf(u'\n', head - 1) + 1;
    qsizetype tail = 0;
    qsizetype kept = 0; // of tail, from the start of a line on
    while (tail < most - head && now[now.size() - 1 - tail] == program[program.size() - 1 - tail]) {
        if (now[now.size() - 1 - tail] == u'\n')
            kept = tail;
        ++tail;
    }
    return {{static_cast<qint32>(head), static_cast<qint32>(now.size() - head - kept)},
            program.sliced(head, program.size() - head - kept)};
}

// With the places to come.
QString tellingOf(ProjectHistory::Way way)
{
    return way == ProjectHistory::Way::Back ? ProjectHistory::tr("Undone: %1")
                                            : ProjectHistory::tr("Redone: %1");
}

} // namespace

ProjectHistory::ProjectHistory(ProjectDocument &document, ProjectView &views)
    : QObject(&views)
    , m_document(document)
    , m_views(views)
{
    const QPointer<ProjectHistory> self(this);
    const auto can = [self](Way way) { return [self, way] { return self && self->canGo(way); }; };
    const auto go = [self](Way way) {
        return [self, way] {
            if (self)
                self->go(way);
        };
    };
    const UndoHistory history{can(Way::Back), can(Way::Forward), go(Way::Back), go(Way::Forward)};
    views.programs().withEach(this, [this, history](qint32 program, ORVListView &view) {
        view.codeView()->setUndoHistory(history);
        follow(program, view);
    });
    connect(&document, &ProjectDocument::stepCarriedOut, this, [this] {
        m_typedIn.clear();
        Q_EMIT wentOn();
    });
    connect(&document, &ProjectDocument::projectReplaced, this, [this] { m_typedIn.clear(); });
    connect(&views.tables(), &TableViews::made, this,
            [history](ORVListView &list) { list.listView()->grid()->setUndoHistory(history); });
}

void ProjectHistory::follow(qint32 program, ORVListView &view)
{
    connect(view.RTextBox(), &RichTextBox::edited, this, [this, program] {
        if (m_isGoing)
            return;
        m_typedIn.insert(program);
        Q_EMIT wentOn();
    });
}

// A program that was typed in until it is again what it was has its own undo first.
const ProjectStep *ProjectHistory::next(Way way) const
{
    const bool isTyped = isOfEditor() && m_typedIn.contains(here());
    if (way == Way::Back && isTyped && code().IsUndoAvailable())
        return nullptr;
    return m_document.next(way, here());
}

ORVListView &ProjectHistory::code() const
{
    return m_views.program();
}

// Who looks at a table takes back what was done to tables, whatever was typed since.
qint32 ProjectHistory::here() const
{
    return isOfEditor() ? m_views.programs().current() : 0;
}

bool ProjectHistory::isOfEditor() const
{
    return !m_views.currentTable();
}

bool ProjectHistory::canGo(Way way) const
{
    if (next(way))
        return true;
    return isOfEditor() && (way == Way::Back ? code().IsUndoAvailable() : code().IsRedoAvailable());
}

void ProjectHistory::go(Way way)
{
    const QScopedValueRollback going(m_isGoing, true);
    if (const ProjectStep *step = next(way))
        goInProject(way, ProjectStep(*step));
    else
        goInEditor(way);
}

// What was typed is not taken back where nobody sees it.
void ProjectHistory::goInEditor(Way way)
{
    if (!isOfEditor())
        return;
    m_typedIn.remove(here());
    Q_EMIT wentOn();
    QString fault;
    if (way == Way::Back)
        code().Undo(fault);
    else
        code().Redo(fault);
    if (!fault.isEmpty())
        Q_EMIT told(fault);
}

// Rows and programs, or neither. What was typed elsewhere since is not thrown away unseen.
void ProjectHistory::goInProject(Way way, const ProjectStep &step)
{
    if (const qint32 other = m_document.obstacle(step, way)) {
        Q_EMIT told(
            tr("%1 has been changed since. Take that back there first.").arg(nameOf(other)));
        return;
    }
    m_document.go(way);
    if (!showPrograms(step, way)) {
        const Way back = way == Way::Back ? Way::Forward : Way::Back;
        m_document.go(back);
        showPrograms(step, back);
        return;
    }
    showPlace(step);
    Q_EMIT went(tellingOf(way).arg(placesOf(step)));
}

bool ProjectHistory::showPrograms(const ProjectStep &step, Way way)
{
    const ProgramTexts &texts = way == Way::Back ? step.before.texts : step.after.texts;
    bool isDone = true;
    for (const qint32 id : step.programs())
        isDone = showProgram(id, texts.value(id), way) && isDone;
    return isDone;
}

// What is in sight already stays so: the program, or the row of the table that is shown.
void ProjectHistory::showPlace(const ProjectStep &step)
{
    const LwType shown = m_views.current().CurrentType();
    const QList<qint32> programs = step.programs();
    if (shown == dsCode && programs.contains(m_views.programs().current()))
        return;
    if (step.rows.isEmpty()) {
        if (!programs.isEmpty())
            m_views.enterProgram(programs.constFirst());
        return;
    }
    const auto found = std::ranges::find(step.rows, shown, &RowChange::type);
    const RowChange &change = found == step.rows.end() ? step.rows.constFirst() : *found;
    Q_EMIT reached(change.type, change.row);
}

QString ProjectHistory::nameOf(qint32 program) const
{
    const ProgramList &list = m_document.project()->programs();
    const auto found = std::ranges::find(list, program, &ProjectProgram::id);
    return list.size() < 2 || found == list.cend() ? tr("Program") : found->name;
}

// Those that it changes, adds or removes, or gives another name.
QStringList ProjectHistory::programsOf(const ProjectStep &step) const
{
    QStringList names;
    for (const qint32 id : step.programs())
        names.append(nameOf(id));
    const ProgramList &before = step.before.list;
    const ProgramList &after = step.after.list;
    for (const ProjectProgram &program : before + after) {
        const bool isSame = before.contains(program) && after.contains(program);
        if (!isSame && !names.contains(program.name))
            names.append(program.name);
    }
    return names;
}

// Such as "Inputs 3", or "Inputs, Controllers, Program" for several rows.
QString ProjectHistory::placesOf(const ProjectStep &step) const
{
    QStringList places;
    for (const RowChange &change : step.rows) {
        const QString table = Localise(displayName(change.type));
        if (step.rows.size() == 1)
            places.append(u"%1 %2"_s.arg(table, QString::number(change.row + 1)));
        else if (!places.contains(table))
            places.append(table);
    }
    return (places + programsOf(step)).join(u", "_s);
}

// By the editor's own history where that has the text, as it mostly has: a renaming takes a
// snapshot. Otherwise the part that differs is put in, in its colours if these leave it as
// it is.
bool ProjectHistory::showProgram(qint32 id, const QString &program, Way way)
{
    RichTextBox &box = *m_views.programs().view(id).RTextBox();
    for (const bool goesBack : {way == Way::Back, way == Way::Forward}) {
        if (m_document.program(id) == program)
            return true;
        if (goesBack)
            box.commands().undo();
        else
            box.commands().redo();
    }
    for (const bool inColours : {true, false}) {
        const Difference part = difference(m_document.program(id), program);
        if (inColours)
            box.commands().replace({part.piece}, part.text);
        else
            box.replacePieces({part.piece}, part.text);
        box.setSelStart(part.piece.start);
        if (m_document.program(id) == program)
            break;
    }
    box.commands().keepState();
    return m_document.program(id) == program;
}

} // namespace ORVTListview
