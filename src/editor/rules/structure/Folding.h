#pragma once

#include "base/HouseExport.h"
#include "editor/rules/structure/BlockWords.h"

namespace ORVTListview {

// Finds what a block hides when it is folded: the lines between that of its IF and
// that of its ENDIF. Of several blocks that a line begins the outermost counts.
class ORVT_HOUSE_EXPORT BlockFold
{
public:
    // Whether the line begins a block that does not end on it.
    static bool begins(QStringView line);

    // The lines follow each other, the one with the IF first; true once the line has the
    // ENDIF.
    bool read(QStringView line);

private:
    int m_depth = 0;
    bool m_hasBegun = false;
};

// The blocks of a program that end on another line than they begin on, when its lines
// have been read from the first on.
class ORVT_HOUSE_EXPORT ProgramBlocks
{
public:
    // Of an IF and of its ENDIF, from 0.
    struct Lines
    {
        int first = 0;
        int last = 0;

        friend bool operator==(const Lines &, const Lines &) = default;
    };

    void read(QStringView line);

    // Those that lie in no other one, from the top.
    const QList<Lines> &outermost() const { return m_outermost; }

    // The lines of the IFs that no ENDIF ends, from the top.
    const QList<int> &open() const { return m_open; }

private:
    QList<Lines> m_outermost;
    QList<int> m_open;
    int m_line = 0; // the next one
};

} // namespace ORVTListview
