#pragma once

#include "editor/CommandTools.h"

namespace ORVTListview {

// Commands that only move the caret; a read-only program is gone through, too.
class CaretCommands
{
public:
    explicit CaretCommands(const CommandTools &tools)
        : m_tools(tools)
    {
    }

    // To the begin of a line, counted from 1; the nearest one counts.
    void goToLine(qint32 line) const;

    // From a bracket to its partner, from an IF, ELSE or ENDIF to the next of its block,
    // and from the last to the first. False without one.
    bool goToPartner() const;

private:
    void goTo(qint32 line, qint32 offset) const;

    const CommandTools m_tools;
};

} // namespace ORVTListview
