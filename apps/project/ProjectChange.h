#pragma once

#include "project/ProjectRow.h"

#include <optional>

namespace ORVTListview {

// A row that comes, goes or is another one. Rows count from 0 and are those of the moment
// at which the change is carried out.
struct RowChange
{
    LwType type;
    qsizetype row;
    std::optional<ProjectRow> before; // none for a new one
    std::optional<ProjectRow> after;  // none for one that goes

    RowChange reversed() const { return {type, row, after, before}; }
};

using RowChanges = QList<RowChange>;

inline RowChanges reversed(const RowChanges &changes)
{
    RowChanges result;
    for (const RowChange &change : changes)
        result.prepend(change.reversed());
    return result;
}

} // namespace ORVTListview
