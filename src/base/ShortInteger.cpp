#include "base/ShortInteger.h"

#include "base/TextRules.h"
#include <ORVTListview/Error.h>

#include <cmath>
#include <limits>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

double toNumber(const QVariant &value, const QString &source)
{
    const bool isText = value.typeId() == QMetaType::QString;
    bool isNumber = false;
    const double number =
        isText ? value.toString().trimmed().toDouble() : value.toDouble(&isNumber);
    if (isText ? !isNumeric(value.toString()) : !isNumber)
        throw Error(TypeMismatch, source, u"Not a number: \"%1\""_s.arg(value.toString()));
    return number;
}

} // namespace

qint16 toShortInteger(const QVariant &value, const QString &source)
{
    if (!value.isValid())
        return 0;
    const double rounded = std::nearbyint(toNumber(value, source));
    using Limits = std::numeric_limits<qint16>;
    if (!(rounded >= Limits::min() && rounded <= Limits::max()))
        throw Error(Overflow, source, u"Not a 16-bit integer: \"%1\""_s.arg(value.toString()));
    return static_cast<qint16>(rounded);
}

} // namespace ORVTListview
