#pragma once

#include "support/points.h"

#include "base/ThreadState.h"

#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ORVTreeview.h>
#include <ORVTListview/RichTextBox.h>

namespace ORVTListview::bench {

// Our editor with a program in colours, set up as a host does it; not yet shown.
// It has the thread's vocabulary and undo ring to itself.
class CodeEditorFace
{
public:
    explicit CodeEditorFace(const QString &program);

    void show(const QString &program);

    ORVListView &widget() { return m_editor; }
    RichTextBox &box() { return *m_editor.RTextBox(); }

    // Snapshots are compressed while the program is idle, beginning some time after
    // the last key. Returns when that is done.
    void waitUntilIdle();

private:
    ThreadState::Fresh m_state;
    Points m_points;
    ORVTreeview m_tree;
    ORVListView m_editor;
};

// What all editors of a run show, so that all draw the same glyphs.
inline constexpr int fontSize = 10;
QString fontName();
RichTextSettings appearance();

} // namespace ORVTListview::bench
