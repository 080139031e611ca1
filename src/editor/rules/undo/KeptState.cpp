#include "editor/rules/undo/KeptState.h"

#include "editor/rules/undo/UndoStore.h"

#include <utility>

namespace ORVTListview {

void KeptState::noteEdit()
{
    m_state.reset();
    m_isShown = false;
    m_isEdited = true;
}

void KeptState::beforeStep(const UndoStore &ring, const UndoRecord &shown)
{
    m_isShown = false;
    const bool wasEdited = std::exchange(m_isEdited, false);
    if (wasEdited && !ring.holdsText(ring.UndoCurrent(), shown.text))
        m_state = shown;
}

std::optional<UndoRecord> KeptState::bringBack()
{
    if (!canBringBack())
        return std::nullopt;
    m_isShown = true;
    return m_state;
}

} // namespace ORVTListview
