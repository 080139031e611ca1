#include "EditMenu.h"

#include "KeyText.h"
#include "LinesMenu.h"
#include "ProjectView.h"
#include "UndoKeys.h"
#include "widgets/box/BoxCommands.h"
#include "workbench/export/ColouredCopy.h"
#include "workbench/renaming/ProjectHistory.h"
#include "workbench/views/ProgramViews.h"

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
    views.programs().withEach(this, [this](qint32, ORVListView &view) {
        connect(&view, &ORVListView::UpdateUndoMenu, this, &EditMenu::refresh);
    });
    connect(&views, &ProjectView::shown, this, &EditMenu::refresh);
    refresh();
}

ORVListView &EditMenu::code() const
{
    return m_views.program();
}

CodeView &EditMenu::codeView() const
{
    return *code().codeView();
}

void EditMenu::addHistory()
{
    m_undo = add(tr("&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z), &EditMenu::undo);
    m_redo = add(tr("&Redo"), QKeySequence(Qt::CTRL | Qt::Key_Y), &EditMenu::redo);
    add(tr("Re&store Typed Text"), {}, &EditMenu::restoreTypedText);
    for (QAction *action : {m_undo, m_redo})
        action->setShortcutContext(Qt::WindowShortcut);
    connect(new UndoKeys(this), &UndoKeys::pressed, this, &EditMenu::refresh);
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
    addAction(tr("Find While T&yping"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F), this,
              [this] { codeView().showFindBar(); });
    addAction(tr("R&eplace…"), QKeySequence(Qt::CTRL | Qt::Key_H), this, &EditMenu::replace);
    addAction(tr("Find &Next"), QKeySequence(Qt::Key_F3), this,
              [this] { tellUnless(codeView().findNext()); });
    addAction(tr("Find Pre&vious"), QKeySequence(Qt::SHIFT | Qt::Key_F3), this,
              [this] { tellUnless(codeView().findPrevious()); });
    addAction(tr("Ne&xt Use"), QKeySequence(Qt::CTRL | Qt::Key_E), this,
              [this] { tellUnless(codeView().findNextAtCaret()); });
    addAction(tr("Prev&ious Use"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), this,
              [this] { tellUnless(codeView().findPreviousAtCaret()); });
}

void EditMenu::addCommands()
{
    auto *lines = new LinesMenu(m_views, this);
    connect(lines, &LinesMenu::acted, this, &EditMenu::acted);
    addMenu(lines);
    addAction(tr("&Go To Line"), QKeySequence(Qt::CTRL | Qt::Key_G), this,
              [this] { codeView().showGoToLine(); });
    addAction(tr("Go To &Match"), QKeySequence(Qt::CTRL | Qt::Key_B), this,
              [this] { tellUnless(codeView().goToPartner()); });
}

void EditMenu::tellUnless(bool isFound)
{
    if (isFound)
        Q_EMIT acted();
    else
        Q_EMIT told(tr("Nothing was found."));
}

// The keys are shown only: the editor acts on them itself, and where something else
// has the focus they are not the editor's. Undo and Redo are the project's.
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
    const bool hasSelection = code().RTextBox()->SelLength() > 0;
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
    if (code().restoreUnsavedText())
        m_hasRestored = true;
    else if (std::exchange(m_hasRestored, false))
        Q_EMIT told(tr("There is no older typed text. The next time the latest comes again."));
    else
        Q_EMIT told(tr("Nothing to restore: %1 and %2 reach all that was typed.")
                        .arg(keyText(Qt::CTRL | Qt::Key_Z), keyText(Qt::CTRL | Qt::Key_Y)));
}

void EditMenu::cut()
{
    code().RTextBox()->commands().cut(); // as the key, with a snapshot
}

void EditMenu::copy()
{
    code().RTextCopy();
}

void EditMenu::copyColoured()
{
    copyWithColours(*code().RTextBox(), m_paper);
}

void EditMenu::paste()
{
    if (const QMimeData *clipboard = QGuiApplication::clipboard()->mimeData())
        code().RTextBox()->commands().paste(*clipboard);
}

void EditMenu::selectAll()
{
    code().RTextSelectAll();
}

void EditMenu::find()
{
    code().showFind();
}

void EditMenu::replace()
{
    code().showFind(true);
}

void EditMenu::showKnownWords()
{
    code().TryToPopupList();
}

} // namespace ORVTListview
