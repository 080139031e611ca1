#include "editor/CommandTools.h"

#include "base/MessageService.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/TypedColouring.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview {

bool mayGoIn(const RichTextBox &box)
{
    return !box.isHidden() && box.isEnabled();
}

bool mayChangeIn(const RichTextBox &box)
{
    return !box.isHidden() && mayUserEdit(box);
}

bool CommandTools::begin() const
{
    if (!mayChangeIn(box))
        return false;
    colouring.finishEdit();
    return true;
}

void CommandTools::carryOut(const CommandChange &change) const
{
    if (change.pieces.isEmpty())
        return;
    const MessagesLater later(thread.messages);
    const RichTextBox::Changing changing(box);
    if (!undo.isShownInRing())
        undo.PushUndoSnapshot();
    const KeptView view(box);
    Q_EMIT moves.about(change.moved);
    box.replacePieces(change.pieces, change.texts, [&] {
        for (const qint32 line : change.linesToFinish)
            colouring.finishLine(line);
        Q_EMIT moves.done(change.moved);
    });
    select(box, change.selection);
    undo.PushUndoSnapshot(); // without it undo would take two commands back at once
    Q_EMIT moves.settled(change.moved);
}

} // namespace ORVTListview
