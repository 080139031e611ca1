#pragma once

#include "base/HouseExport.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

// A value as a 16-bit integer, rounded to the nearest, a half to the even one. An
// unset value is 0. Raises Error of that source: TypeMismatch for what is no
// number, Overflow for one beyond -32768 to 32767. Texts count as TextRules says.
ORVT_HOUSE_EXPORT qint16 toShortInteger(const QVariant &value, const QString &source);

} // namespace ORVTListview
