#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

#include <ORVTListview/KeyedCollection.h>

namespace ORVTListview {

// The types' display names and values as collections, in the fixed order in which
// hosts show them, which is not that of the values.
namespace TypeCollections {

// Display names, under "Key" and the type's value.
ORVT_HOUSE_EXPORT KeyedCollection<QString> names();

// Types' values, under their display names.
ORVT_HOUSE_EXPORT KeyedCollection<qint32> values();

} // namespace TypeCollections
} // namespace ORVTListview
