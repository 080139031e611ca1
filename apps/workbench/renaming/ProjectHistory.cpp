#include "workbench/renaming/ProjectHistory.h"

#include "base/TextPiece.h"
#include "project/ProjectDocument.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/ProjectView.h"
#include "workbench/views/TableViews.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtGui/QKeyEvent>

#include <algorithm>

namespace ORVTListview {

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

} // namespace

ProjectHistory::ProjectHistory(ProjectDocument &document, const ProjectView &views)
    : QObject(&views.program())
    , m_document(document)
    , m_views(views)
    , m_code(views.program())
{
    m_code.RTextBox()->installEventFilter(this);
    connect(&views.tables(), &TableViews::made, this,
            [this](ORVListView &list) { list.listView()->installEventFilter(this); });
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

bool ProjectHistory::canUndo() const
{
    return m_document.undoStep(among()) || (isOfEditor() && m_code.IsUndoAvailable());
}

bool ProjectHistory::canRedo() const
{
    return m_document.redoStep(among()) || (isOfEditor() && m_code.IsRedoAvailable());
}

// The keys of editor and table, before they act on them.
bool ProjectHistory::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto &press = *static_cast<QKeyEvent *>(event);
    const QKeyCombination key = press.keyCombination();
    if (key == (Qt::CTRL | Qt::Key_Z) && m_document.undoStep(among()))
        undo();
    else if (key == (Qt::CTRL | Qt::Key_Y) && m_document.redoStep(among()))
        redo();
    else
        return QObject::eventFilter(watched, event);
    return true;
}

void ProjectHistory::undo()
{
    QString errMsg;
    if (const ProjectStep *step = m_document.undoStep(among())) {
        const QString before = step->programBefore;
        const bool isOfProgram = !step->isOfTablesAlone();
        m_document.undo();
        if (isOfProgram && !showProgram(before, true))
            m_document.redo(); // both or none
    } else if (isOfEditor()) {
        m_code.Undo(errMsg);
    }
    if (!errMsg.isEmpty())
        Q_EMIT told(errMsg);
}

void ProjectHistory::redo()
{
    QString errMsg;
    if (const ProjectStep *step = m_document.redoStep(among())) {
        const QString after = step->programAfter;
        const bool isOfProgram = !step->isOfTablesAlone();
        m_document.redo();
        if (isOfProgram && !showProgram(after, false))
            m_document.undo();
    } else if (isOfEditor()) {
        m_code.Redo(errMsg);
    }
    if (!errMsg.isEmpty())
        Q_EMIT told(errMsg);
}

// By the editor's own history where that has the text, as it mostly has: a renaming takes a
// snapshot. Otherwise the part that differs is put in, in its colours if these leave it as
// it is.
bool ProjectHistory::showProgram(const QString &program, bool isUndo)
{
    RichTextBox &box = *m_code.RTextBox();
    for (const bool goesBack : {isUndo, !isUndo}) {
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
        if (m_document.program() == program)
            break;
    }
    box.commands().keepState();
    box.setSelStart(0);
    return m_document.program() == program;
}

} // namespace ORVTListview
