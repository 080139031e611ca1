#pragma once

#include "editor/CommandTools.h"

namespace ORVTListview {

// Commands on whole lines: those that the selection touches. Each is one step of undo, and
// nothing when there is nothing to do. A line keeps its colours wherever it goes.
class LineBlocks
{
public:
    explicit LineBlocks(const CommandTools &tools)
        : m_tools(tools)
    {
    }

    void move(int by) const; // as far as there are lines; negative is up
    void duplicate() const;  // the copy comes behind
    void remove() const;     // the caret keeps its place in the line
    void join() const;       // a single line with the next
    void sort() const;

private:
    ColouredText coloured(const LineSpan &lines) const;

    const CommandTools m_tools;
};

} // namespace ORVTListview
