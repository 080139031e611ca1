#pragma once

#include "editor/rules/structure/BlockWords.h"

namespace ORVTListview {

// Looks for what belongs to an IF, ELSE or ENDIF, in one direction, given line after
// line; the lines may come in portions. Blocks inside are stepped over. An ELSE IF is
// an IF inside the ELSE.
class ORVT_HOUSE_EXPORT BlockWalk
{
public:
    enum class Direction { Forwards, Backwards };

    explicit BlockWalk(Direction direction)
        : m_direction(direction)
    {
    }

    // The words of a line that lie in the direction of the walk, from the left. Returns
    // those that belong to the word where the walk began; the last of all is the ENDIF,
    // or backwards the IF, and then the walk is done.
    QList<BlockWord> read(const QList<BlockWord> &words);

    bool isDone() const { return m_isDone; }

    // Blocks begun and not ended among those stepped over.
    int depth() const { return m_depth; }

private:
    const Direction m_direction;
    int m_depth = 0;
    bool m_isDone = false;
};

} // namespace ORVTListview
