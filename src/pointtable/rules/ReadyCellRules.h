#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/CellRule.h>

#include <QtCore/QHash>

namespace ORVTListview {

// What users may reasonably edit in a type's table, by the columns' keys, hardware
// overrides included. A column that is not there is not edited; nor is that of the
// numbers. None for dsCode and for a value that is no type.
ORVT_HOUSE_EXPORT QHash<QString, CellRule> readyCellRules(qint32 type);

} // namespace ORVTListview
