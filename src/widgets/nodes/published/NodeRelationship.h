#pragma once

#include <QtCore/qglobal.h>

namespace ORVTListview {

// Where a node goes, seen from another one.
enum class NodeRelationship : qint32 {
    First = 0,    // before all siblings of the other
    Last = 1,     // behind all siblings of the other
    Next = 2,     // directly behind the other
    Previous = 3, // directly before the other
    Child = 4,    // below the other, behind its last child
};

} // namespace ORVTListview
