#include "workbench/renaming/ProjectHistory.h"

#include "base/TextPiece.h"
#include "project/ProjectDocument.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/ProjectView.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>
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

// Such as "Inputs 3", or "Inputs, Controllers, Program" for several rows.
QString placesOf(const ProjectStep &step)
{
    QStringList places;
    for (const RowChange &change : step.rows) {
        const QString table = Localise(displayName(change.type));
        if (step.rows.size() == 1)
            places.append(u"%1 %2"_s.arg(table, QString::number(change.row + 1)));
        else if (!places.contains(table))
            places.append(table);
    }
    if (!step.isOfTablesAlone())
        places.append(ProjectHistory::tr("Program"));
    return places.join(u", "_s);
}

} // namespace

ProjectHistory::ProjectHistory(ProjectDocument &document, const ProjectView &views)
    : QObject(&views.program())
    , m_document(document)
    , m_views(views)
    , m_code(views.program())
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
    m_code.codeView()->setUndoHistory(history);
    connect(&views.tables(), &TableViews::made, this,
            [history](ORVListView &list) { list.listView()->grid()->setUndoHistory(history); });
}

// Who looks at a table takes back what was done to tables, whatever was typed since.
ProjectDocument::Among ProjectHistory::among() const
{
    return isOfEditor() ? ProjectDocument::Among::All : ProjectDocument::Among::TablesAlone;
}

bool ProjectHistory::isOfEditor() const
{
    return !m_views.currentTable();
}

bool ProjectHistory::canGo(Way way) const
{
    if (m_document.next(way, among()))
        return true;
    return isOfEditor() && (way == Way::Back ? m_code.IsUndoAvailable() : m_code.IsRedoAvailable());
}

void ProjectHistory::go(Way way)
{
    if (const ProjectStep *step = m_document.next(way, among()))
        goInProject(way, ProjectStep(*step));
    else
        goInEditor(way);
}

// What was typed is not taken back where nobody sees it.
void ProjectHistory::goInEditor(Way way)
{
    if (!isOfEditor())
        return;
    QString fault;
    if (way == Way::Back)
        m_code.Undo(fault);
    else
        m_code.Redo(fault);
    if (!fault.isEmpty())
        Q_EMIT told(fault);
}

// Rows and program, or neither.
void ProjectHistory::goInProject(Way way, const ProjectStep &step)
{
    const bool isBack = way == Way::Back;
    m_document.go(way);
    if (!step.isOfTablesAlone() &&
        !showProgram(isBack ? step.programBefore : step.programAfter, way)) {
        m_document.go(isBack ? Way::Forward : Way::Back);
        return;
    }
    showPlace(step);
    Q_EMIT told(tellingOf(way).arg(placesOf(step)));
}

// What is in sight already stays so: the program, or the row of the table that is shown.
void ProjectHistory::showPlace(const ProjectStep &step)
{
    const LwType shown = m_views.current().CurrentType();
    if (step.rows.isEmpty() || (shown == dsCode && !step.isOfTablesAlone()))
        return;
    const auto found = std::ranges::find(step.rows, shown, &RowChange::type);
    const RowChange &change = found == step.rows.end() ? step.rows.constFirst() : *found;
    Q_EMIT reached(change.type, change.row);
}

// By the editor's own history where that has the text, as it mostly has: a renaming takes a
// snapshot. Otherwise the part that differs is put in, in its colours if these leave it as
// it is.
bool ProjectHistory::showProgram(const QString &program, Way way)
{
    RichTextBox &box = *m_code.RTextBox();
    for (const bool goesBack : {way == Way::Back, way == Way::Forward}) {
        if (m_document.program() == program)
            return true;
        if (goesBack)
            box.commands().undo();
        else
            box.commands().redo();
    }
    for (const bool inColours : {true, false}) {
        const Difference part = difference(m_document.program(), program);
        if (inColours)
            box.commands().replace({part.piece}, part.text);
        else
            box.replacePieces({part.piece}, part.text);
        box.setSelStart(part.piece.start);
        if (m_document.program() == program)
            break;
    }
    box.commands().keepState();
    return m_document.program() == program;
}

} // namespace ORVTListview
