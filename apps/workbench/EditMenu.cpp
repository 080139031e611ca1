#include "EditMenu.h"

#include "LinesMenu.h"
#include "ProjectView.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/export/ColouredCopy.h"
#include "workbench/renaming/ProjectHistory.h"

#include <ORVTListview/CodeView.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

#include <utility>

namespace ORVTListview {

EditMenu::EditMenu(const ProjectView &views, ProjectHistory &history, const PaperColours &paper,
                   QWidget *parent)
    : QMenu(tr("&Edit"), parent)
    , m_views(views)
    , m_code(views.program())
    , m_view(*m_code.codeView())
    , m_paper(paper)
    , m_history(history)
{
    addHistory();
    addSeparator();
    addClipboard();
    addSeparator();
    addFinding();
    addSeparator();
    add(tr("Select &All"), QKeySequence::SelectAll, &EditMenu::selectAll);
    add(tr("&Known Words"), QKeySequence(Qt::CTRL | Qt::Key_Space), &EditMenu::showKnownWords);
    addSeparator();
    addCommands();
    connect(this, &QMenu::aboutToShow, this, &EditMenu::refresh);
    connect(&m_code, &ORVListView::UpdateUndoMenu, this, &EditMenu::refresh);
    connect(&views, &ProjectView::shown, this, &EditMenu::refresh);
    refresh();
}

void EditMenu::addHistory()
{
    m_undo = add(tr("&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z), &EditMenu::undo);
    m_redo = add(tr("&Redo"), QKeySequence(Qt::CTRL | Qt::Key_Y), &EditMenu::redo);
    add(tr("Re&store Typed Text"), {}, &EditMenu::restoreTypedText);
}

void EditMenu::addClipboard()
{
    m_cut = add(tr("Cu&t"), QKeySequence(Qt::CTRL | Qt::Key_X), &EditMenu::cut);
    m_copy = add(tr("&Copy"), QKeySequence(Qt::CTRL | Qt::Key_C), &EditMenu::copy);
    m_colouredCopy = add(tr("Copy with C&olours"), {}, &EditMenu::copyColoured);
    m_paste = add(tr("&Paste"), QKeySequence(Qt::CTRL | Qt::Key_V), &EditMenu::paste);
}

// The editor leaves these keys to its host, so they work in the whole window.
void EditMenu::addFinding()
{
    addAction(tr("&Find…"), QKeySequence(Qt::CTRL | Qt::Key_F), this, &EditMenu::find);
    addAction(tr("Find While T&yping"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), &m_view,
              &CodeView::showFindBar);
    addAction(tr("R&eplace…"), QKeySequence(Qt::CTRL | Qt::Key_H), this, &EditMenu::replace);
    addAction(tr("Find &Next"), QKeySequence(Qt::Key_F3), this,
              [this] { tellUnless(m_view.findNext()); });
    addAction(tr("Find Pre&vious"), QKeySequence(Qt::SHIFT | Qt::Key_F3), this,
              [this] { tellUnless(m_view.findPrevious()); });
    addAction(tr("Ne&xt Use"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
              [this] { tellUnless(m_view.findNextAtCaret()); });
    addAction(tr("Prev&ious Use"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), this,
              [this] { tellUnless(m_view.findPreviousAtCaret()); });
}

void EditMenu::addCommands()
{
    auto *lines = new LinesMenu(m_view, this);
    connect(lines, &LinesMenu::acted, this, &EditMenu::acted);
    addMenu(lines);
    addAction(tr("&Go To Line"), QKeySequence(Qt::CTRL | Qt::Key_G), &m_view,
              &CodeView::showGoToLine);
    addAction(tr("Go To &Match"), QKeySequence(Qt::CTRL | Qt::Key_B), this,
              [this] { tellUnless(m_view.goToPartner()); });
}

void EditMenu::tellUnless(bool isFound)
{
    if (isFound)
        Q_EMIT acted();
    else
        Q_EMIT told(tr("Nothing was found."));
}

// The keys are shown only: the editor acts on them itself, and where something else
// has the focus they are not the editor's.
QAction *EditMenu::add(const QString &text, const QKeySequence &keys, void (EditMenu::*command)())
{
    QAction *action = addAction(text, this, [this, command] {
        (this->*command)();
        Q_EMIT acted();
    });
    action->setShortcut(keys);
    action->setShortcutContext(Qt::WidgetShortcut);
    return action;
}

void EditMenu::refresh()
{
    const bool isCode = !m_views.currentTable();
    for (QAction *action : actions())
        action->setEnabled(isCode);
    m_undo->setEnabled(m_history.canGo(ProjectHistory::Way::Back));
    m_redo->setEnabled(m_history.canGo(ProjectHistory::Way::Forward));
    if (!isCode)
        return;
    const bool hasSelection = m_code.RTextBox()->SelLength() > 0;
    m_cut->setEnabled(hasSelection);
    m_copy->setEnabled(hasSelection);
    m_colouredCopy->setEnabled(hasSelection);
    const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData();
    m_paste->setEnabled(clipboard && clipboard->hasText());
}

void EditMenu::undo()
{
    m_history.go(ProjectHistory::Way::Back);
}

void EditMenu::redo()
{
    m_history.go(ProjectHistory::Way::Forward);
}

void EditMenu::restoreTypedText()
{
    if (m_code.restoreUnsavedText())
        m_hasRestored = true;
    else if (std::exchange(m_hasRestored, false))
        Q_EMIT told(tr("There is no older typed text. The next time the latest comes again."));
    else
        Q_EMIT told(tr("Nothing to restore: Ctrl+Z and Ctrl+Y reach all that was typed."));
}

void EditMenu::cut()
{
    m_code.RTextBox()->commands().cut(); // as the key, with a snapshot
}

void EditMenu::copy()
{
    m_code.RTextCopy();
}

void EditMenu::copyColoured()
{
    copyWithColours(*m_code.RTextBox(), m_paper);
}

void EditMenu::paste()
{
    if (const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData())
        m_code.RTextBox()->commands().paste(*clipboard);
}

void EditMenu::selectAll()
{
    m_code.RTextSelectAll();
}

void EditMenu::find()
{
    m_code.showFind();
}

void EditMenu::replace()
{
    m_code.showFind(true);
}

void EditMenu::showKnownWords()
{
    m_code.TryToPopupList();
}

} // namespace ORVTListview
