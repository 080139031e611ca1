#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

namespace ORVTListview {

// The keys of a type's columns, from left to right: the English headers. Outputs
// have two more with hardware overrides. dsCode and a value that is no type have
// none.
ORVT_HOUSE_EXPORT QStringList columnKeys(qint32 type, bool isHOASupported);

// What the header of such a column shows in the thread's language. The number
// column's "#" is no word and stays as it is.
ORVT_HOUSE_EXPORT QString columnText(const QString &key);

// How many rows a type begins with; 0 for dsCode and for a value that is no type.
ORVT_HOUSE_EXPORT qint16 defaultNumberItems(qint32 type);

// Key and text of the row with this number, which counts from 1. typeKey is the
// type's display name: "Optimum Starts" makes OptimumStarts1 and "01".
ORVT_HOUSE_EXPORT QString rowKey(const QString &typeKey, int number);
ORVT_HOUSE_EXPORT QString rowText(int number);

} // namespace ORVTListview
