#include "editor/CodeCommands.h"

#include "base/TextPiece.h"
#include "editor/EditorKeys.h"
#include "editor/EditorUndo.h"
#include "editor/ProgramClipboard.h"
#include "editor/ProgramEditing.h"
#include "editor/ProgramText.h"
#include "editor/StatusTimer.h"
#include "editor/TypedColouring.h"
#include "editor/WordChoice.h"
#include "shared/texts/MenuTexts.h"
#include "widgets/input/DraggedNames.h"
#include "widgets/input/TabStops.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QMimeData>
#include <QtCore/QPointer>
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
        captions << action->text();
    captions = menuTexts(captions);
    for (qsizetype i = 0; i < actions.size(); ++i)
        actions[i]->setText(captions[i]);
}

} // namespace

CodeCommands::CodeCommands(RichTextBox &owner, const Acts &acts)
    : PlainCommands(owner)
    , m_acts(acts)
{
}

std::optional<bool> CodeCommands::takesKey(const VirtualKey &key) const
{
    switch (const KeyDecision decision = m_acts.keys.decide(key.keyCode, key.shift)) {
    case KeyDecision::ReachBox:
        return {}; // the toolkit's choice for characters and moves
    default:
        return isTakenFromShortcuts(decision);
    }
}

void CodeCommands::type(const QString &text)
{
    m_acts.status.rearm(); // an input method's text comes without a key
    const QPointer<PopupWordList> words(&m_acts.words.popup()); // the host may destroy it
    m_acts.editing.typeText(text);
    if (words)
        words->noteTyped();
}

Pasted CodeCommands::paste(const QMimeData &data)
{
    if (!data.hasText())
        return Pasted::Refused;
    return m_acts.clipboard.pasteFromOutside(DraggedNames::in(data).value_or(data.text()));
}

void CodeCommands::copy()
{
    m_acts.clipboard.RTextCopy();
}

void CodeCommands::cut()
{
    m_acts.clipboard.cutByKey();
}

void CodeCommands::remove()
{
    m_acts.clipboard.removeSelection();
}

void CodeCommands::removeBefore(Extent extent)
{
    removing([this, extent] { PlainCommands::removeBefore(extent); });
}

void CodeCommands::removeAfter(Extent extent)
{
    removing([this, extent] { PlainCommands::removeAfter(extent); });
}

// A selection that goes leaves no word that is being typed.
void CodeCommands::removing(const std::function<void()> &act)
{
    const RichTextBox::Changing changing(box());
    const bool wasSelected = box().SelLength() > 0;
    act();
    if (wasSelected)
        m_acts.colouring.finishEdit();
}

void CodeCommands::selectAll()
{
    m_acts.text.RTextSelectAll();
}

void CodeCommands::replace(const QList<TextPiece> &pieces, const QString &text)
{
    m_acts.editing.replace(pieces, text, ProgramEditing::Replacing::InColours);
}

void CodeCommands::beforeChange(bool losesPart)
{
    m_acts.undo.beforeEdit(losesPart);
}

void CodeCommands::edit(const std::function<void()> &change)
{
    m_acts.colouring.edit(change);
}

void CodeCommands::keepState()
{
    m_acts.undo.PushUndoSnapshot();
}

void CodeCommands::undo()
{
    QString errMsg;
    m_acts.undo.Undo(errMsg);
}

void CodeCommands::redo()
{
    QString errMsg;
    m_acts.undo.Redo(errMsg);
}

void CodeCommands::leave(bool forwards)
{
    m_acts.tabStops.giveBack();
    box().moveFocus(forwards);
}

void CodeCommands::fillMenu(QMenu &menu)
{
    using Way = EditorUndo::Way;
    EditorUndo &history = m_acts.undo;
    const QPointer<RichTextBox> alive(&box()); // the host is asked and may destroy it
    const bool canUndo = history.canUserUndo();
    const bool canRedo = alive && history.canUserRedo();
    if (!alive)
        return;
    addChange(menu, u"Undo"_s, canUndo, [&history] { history.stepForUser(Way::Back); });
    addChange(menu, u"Redo"_s, canRedo, [&history] { history.stepForUser(Way::Forward); });
    menu.addSeparator();
    PlainCommands::fillMenu(menu);
    localise(menu);
}

} // namespace ORVTListview
