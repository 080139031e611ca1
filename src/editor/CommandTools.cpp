#include "editor/CommandTools.h"

#include "base/MessageService.h"
#include "editor/EditorThread.h"
#include "editor/EditorUndo.h"
#include "editor/TypedColouring.h"
#include "widgets/box/KeptView.h"
#include "widgets/box/UserEditing.h"
#include <ORVTListview/RichTextBox.h>

#include <QtCore/QPointer>

#include <algorithm>
#include <numeric>

namespace ORVTListview {
namespace {

// No snapshot is taken of an empty program, so the step back begins at the one before it.
bool empties(const CommandChange &change, const RichTextBox &box)
{
    const bool addsNothing = std::all_of(change.texts.begin(), change.texts.end(),
                                         [](const auto &text) { return text.text.isEmpty(); });
    const auto removed = [](qint32 sum, const TextPiece &piece) { return sum + piece.length; };
    return addsNothing && std::accumulate(change.pieces.begin(), change.pieces.end(), qint32{0},
                                          removed) == box.TextLength();
}

} // namespace

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
    if (empties(change, box) || !undo.isShownInRing())
        undo.PushUndoSnapshot();
    const KeptView view(box);
    const QPointer<RichTextBox> alive(&box); // the caret moves, and the host may destroy it
    Q_EMIT moves.about(change.moved);
    box.replacePieces(change.pieces, change.texts, [&] {
        for (const qint32 line : change.linesToFinish)
            colouring.finishLine(line);
        Q_EMIT moves.done(change.moved);
    });
    if (alive)
        select(box, change.selection);
    if (!alive)
        return;
    undo.PushUndoSnapshot(); // without it undo would take two commands back at once
    Q_EMIT moves.settled(change.moved);
}

} // namespace ORVTListview
