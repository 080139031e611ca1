#include "renaming/ProjectHistory.h"

#include "project/ProjectDocument.h"
#include "widgets/box/BoxCommands.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QKeyEvent>

namespace ORVTListview {

ProjectHistory::ProjectHistory(ProjectDocument &document, ORVListView &code)
    : QObject(&code)
    , m_document(document)
    , m_code(code)
{
    code.RTextBox()->installEventFilter(this);
    code.listView()->installEventFilter(this);
}

// Who looks at a table takes back what was done to tables, whatever was typed since.
ProjectDocument::Among ProjectHistory::among() const
{
    return m_code.CurrentType() == dsCode ? ProjectDocument::Among::All
                                          : ProjectDocument::Among::TablesAlone;
}

bool ProjectHistory::canUndo() const
{
    return m_document.undoStep(among()) || m_code.IsUndoAvailable();
}

bool ProjectHistory::canRedo() const
{
    return m_document.redoStep(among()) || m_code.IsRedoAvailable();
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
        if (isOfProgram)
            showProgram(before, true);
    } else {
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
        if (isOfProgram)
            showProgram(after, false);
    } else {
        m_code.Redo(errMsg);
    }
    if (!errMsg.isEmpty())
        Q_EMIT told(errMsg);
}

// By the editor's own history where that has the text, as it mostly has: a renaming takes a
// snapshot. Its steps do nothing while a table is shown.
void ProjectHistory::showProgram(const QString &program, bool isUndo)
{
    QString errMsg;
    for (const bool goesBack : {isUndo, !isUndo}) {
        if (m_document.program() == program)
            return;
        if (goesBack)
            m_code.Undo(errMsg);
        else
            m_code.Redo(errMsg);
    }
    if (m_document.program() == program)
        return;
    RichTextBox &box = *m_code.RTextBox();
    box.setSelStart(0);
    box.setSelLength(box.TextLength());
    QMimeData text;
    text.setText(program);
    box.commands().paste(text);
    box.setSelStart(0);
}

} // namespace ORVTListview
