#include "editor/CodeCommands.h"

#include "base/TextPiece.h"
#include "base/ThreadState.h"
#include "editor/CodeEditor.h"
#include "editor/EditorKeys.h"
#include "editor/rules/undo/UndoStore.h"
#include "shared/texts/AccessKeys.h"
#include "shared/texts/TextTable.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtGui/QAction>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QMenu>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// What the plain box puts into its menu is in English.
void localise(QMenu &menu)
{
    const QList<QAction *> actions = menu.actions();
    QStringList captions;
    for (const QAction *action : actions)
        captions << Localise(action->text().remove(u'&'));
    captions = withAccessKeys(captions);
    for (qsizetype i = 0; i < actions.size(); ++i)
        actions[i]->setText(captions[i]);
}

} // namespace

CodeCommands::CodeCommands(CodeEditor &editor)
    : PlainCommands(editor.box())
    , m_editor(editor)
{
}

std::optional<bool> CodeCommands::takesKey(const VirtualKey &key) const
{
    switch (const KeyDecision decision = m_editor.decideKey(key.keyCode, key.shift)) {
    case KeyDecision::ReachBox:
        return {}; // the toolkit's choice for characters and moves
    default:
        return isTakenFromShortcuts(decision);
    }
}

void CodeCommands::type(const QString &text)
{
    m_editor.typeText(text);
}

Pasted CodeCommands::paste(const QMimeData &data)
{
    return data.hasText() ? m_editor.pasteFromOutside(data.text()) : Pasted::Refused;
}

void CodeCommands::copy()
{
    m_editor.RTextCopy();
}

void CodeCommands::cut()
{
    m_editor.cutByKey();
}

void CodeCommands::remove()
{
    m_editor.removeSelection();
}

void CodeCommands::selectAll()
{
    m_editor.RTextSelectAll();
}

void CodeCommands::replace(const QList<TextPiece> &pieces, const QString &text)
{
    m_editor.replace(pieces, text, CodeEditor::Replacing::InColours);
}

void CodeCommands::beforeChange(bool losesPart)
{
    m_editor.noteChangeAhead(losesPart);
}

void CodeCommands::edit(const std::function<void()> &change)
{
    m_editor.edit(change);
}

void CodeCommands::undo()
{
    QString errMsg;
    m_editor.Undo(errMsg);
}

void CodeCommands::redo()
{
    QString errMsg;
    m_editor.Redo(errMsg);
}

void CodeCommands::leave(bool forwards)
{
    m_editor.giveBackTabStops();
    box().moveFocus(forwards);
}

void CodeCommands::fillMenu(QMenu &menu)
{
    const auto add = [this, &menu](const QString &text, bool isEnabled,
                                   void (CodeCommands::*act)()) {
        menu.addAction(text, &menu, [this, act] { (this->*act)(); })->setEnabled(isEnabled);
    };
    const bool canChange = !box().isReadOnly();
    add(u"Undo"_s, canChange && m_editor.canUndo(), &CodeCommands::undo);
    add(u"Redo"_s, canChange && m_editor.canRedo(), &CodeCommands::redo);
    menu.addSeparator();
    PlainCommands::fillMenu(menu);
    localise(menu);
}

} // namespace ORVTListview
