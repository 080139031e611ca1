#pragma once

#include <functional>

namespace ORVTListview {

// A host's one history for several things, in the place of a component's own: what Undo and
// Redo of its users end in, by key and by menu. A menu offers what canUndo and canRedo answer
// yes to; keys call undo and redo in any case. What is missing answers no and does nothing.
// undo and redo may end the component.
struct UndoHistory
{
    std::function<bool()> canUndo; // whether a menu offers Undo
    std::function<bool()> canRedo; // whether it offers Redo
    std::function<void()> undo;    // takes the last step back
    std::function<void()> redo;    // makes the step again that was taken back last
};

} // namespace ORVTListview
