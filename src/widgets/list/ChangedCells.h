#pragma once

#include <QtCore/QList>

#include <utility>

namespace ORVTListview {

// Cells that have changed, as blocks of those that are side by side and were given one after
// the other, row by row.
class ChangedCells
{
public:
    struct Block
    {
        int top;
        int left;
        int bottom;
        int right;
    };

    void add(int row, int column)
    {
        if (row == m_line.top && column == m_line.right + 1) {
            m_line.right = column;
            return;
        }
        endLine();
        m_line = {row, column, row, column};
    }

    QList<Block> take()
    {
        endLine();
        return std::exchange(m_blocks, {});
    }

private:
    static constexpr Block none{-1, -1, -1, -1};

    void endLine()
    {
        const Block line = std::exchange(m_line, none);
        if (line.top < 0)
            return;
        const bool goesOn = !m_blocks.isEmpty() && m_blocks.constLast().left == line.left &&
                            m_blocks.constLast().right == line.right &&
                            m_blocks.constLast().bottom == line.top - 1;
        if (goesOn)
            m_blocks.last().bottom = line.top;
        else
            m_blocks.append(line);
    }

    QList<Block> m_blocks;
    Block m_line = none; // the row at hand
};

} // namespace ORVTListview
