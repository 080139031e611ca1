#pragma once

#include <functional>

namespace ORVTListview {

// A host's one history for several things, in the place of a component's own: what Undo and
// Redo of its users end in, by key and by menu. A menu offers what canUndo and canRedo answer
// yes to; keys call undo and redo in any case. What is missing answers no and does nothing.
// undo and redo may end the component.
struct UndoHistory
{
    std::function<bool()> canUndo;
    std::function<bool()> canRedo;
    std::function<void()> undo;
    std::function<void()> redo;
};

} // namespace ORVTListview
