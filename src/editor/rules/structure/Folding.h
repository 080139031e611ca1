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

} // namespace ORVTListview
