#pragma once

#include "base/HouseExport.h"

#include <QtCore/QVariant>

// What a property bag makes of a value that it finds under a name.
namespace ORVTListview::PropertyValue {

// The kept value as a value of Default's type; Default when it is of another kind.
// Kinds are truth values, whole numbers with the enumerations, numbers and texts;
// values of other types must have exactly the type. Without a Default the kept
// value is taken as it is.
ORVT_HOUSE_EXPORT QVariant read(const QVariant &kept, const QVariant &Default);

// The same for a store that keeps everything as text.
QVariant readText(const QVariant &kept, const QVariant &Default);

// What a store that knows no enumerations keeps of a value.
QVariant plain(const QVariant &value);

} // namespace ORVTListview::PropertyValue
