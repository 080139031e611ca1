#pragma once

#include "editor/rules/undo/UndoRecord.h"

#include <optional>

namespace ORVTListview {

class UndoStore;

// What one editor showed before undo or redo took it away, when no slot brings it
// back. Snapshots are taken before a change, so the text typed since the last one
// stands in no slot; without this an undo would lose it. Each editor has its own,
// because all of them share the ring.
//
// It lies beside the ring, which never sees it: no index moves, CanUndo and
// CanRedo do not count it. The editor brings it back at a redo when no slot lies
// ahead, or whenever it is told to. It lasts until the editor's next edit; undo
// and redo do not end it, so one can go back and forth and still return.
class ORVT_CORE_EXPORT KeptState
{
public:
    // The editor's text was changed by anything but undo, redo and bringBack: a
    // key, a paste, the host. Forgets the kept state. To be called too when the
    // ring is emptied.
    void noteEdit();

    // Before undo or redo acts, with what the editor shows. Keeps it, unless the
    // slot that the editor is at has the same text, or the text was put there by
    // undo or redo and not edited since. Only for a step that can be taken.
    void beforeStep(const UndoStore &ring, const UndoRecord &shown);

    // Whether there is a state that the editor does not show already.
    bool canBringBack() const { return m_state && !m_isShown; }

    // The state to show, exactly as it was; none when canBringBack() is false. It
    // stays kept.
    std::optional<UndoRecord> bringBack();

private:
    std::optional<UndoRecord> m_state;
    bool m_isEdited = true; // since undo or redo put the text there
    bool m_isShown = false; // m_state, by bringBack
};

} // namespace ORVTListview
