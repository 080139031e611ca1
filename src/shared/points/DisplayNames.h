#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

namespace ORVTListview {

constexpr qint32 lowestType = dsCode;
constexpr qint32 highestType = dsOutputParam;

constexpr bool isType(qint32 value)
{
    return value >= lowestType && value <= highestType;
}

// The fixed English name of a type ("Optimum Starts"): key, caption before
// translation, image key and setting name in one. Empty for a value that is no type.
ORVT_HOUSE_EXPORT QString displayName(qint32 type);

} // namespace ORVTListview
