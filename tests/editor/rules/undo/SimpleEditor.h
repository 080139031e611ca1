#pragma once

#include "editor/rules/undo/KeptStates.h"
#include "editor/rules/undo/UndoStore.h"

#include <optional>
#include <utility>

namespace ORVTListview {

// An editor as far as undo sees it. Restoring spaces the text out, as colouring
// does; what is brought back is exact.
class SimpleEditor
{
public:
    explicit SimpleEditor(UndoStore &shared)
        : ring(shared)
    {
    }

    void load(const QString &program)
    {
        text = program;
        kept.clear();
        ring.ResetUndoBase(text);
    }

    void stand() { hasStood = true; }

    void edit(const QString &changed)
    {
        offerWhatStood();
        text = changed;
        kept.noteEdit(ring);
    }

    // As a selection is typed over.
    void replace(const QString &changed)
    {
        if (!kept.isShownSafe(ring))
            kept.offer(shown());
        edit(changed);
    }

    void snapshot()
    {
        kept.beforeSnapshot(ring);
        ring.StoreUndoSnapshot(shown());
        kept.afterSnapshot(ring);
    }

    void undo() { go(KeptStates::Way::Back, ring.CanUndo(), &UndoStore::UndoStepBack); }
    void redo() { go(KeptStates::Way::Forward, ring.CanRedo(), &UndoStore::RedoStepForward); }

    void bringBack()
    {
        offerWhatStood();
        if (const auto state = kept.bringBack(ring, shown()))
            text = state->text.toString();
    }

    UndoRecord shown() const { return {text, qint32(text.size()), 0}; }

    static QString spaced(const QString &program)
    {
        return QString(program).remove(u' ').replace(u'=', QStringLiteral(" = "));
    }

    UndoStore &ring;
    KeptStates kept;
    QString text;
    bool hasStood = false;

private:
    void offerWhatStood()
    {
        if (std::exchange(hasStood, false))
            kept.offer(shown());
    }

    void go(KeptStates::Way way, bool canStep, std::optional<qint16> (UndoStore::*step)())
    {
        offerWhatStood();
        if (canStep) {
            kept.beforeStep(ring, shown());
            text = spaced(splitUndoRecord(ring.FetchUndoSnapshot(*(ring.*step)())).text);
            kept.afterStep(ring);
        } else if (const auto state = kept.go(ring, shown(), way)) {
            text = state->text.toString();
        }
    }
};

} // namespace ORVTListview
