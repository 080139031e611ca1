#include "members/ArgumentValue.h"

#include "members/RecordValue.h"

#include <cmath>
#include <limits>

namespace ORVTListview::ArgumentValue {

namespace {

bool holds(QMetaType type, qint64 number)
{
    const auto bits = static_cast<int>(type.sizeOf() * 8);
    if (bits >= 64)
        return true;
    const bool isUnsigned = type.flags().testFlag(QMetaType::IsUnsignedEnumeration) ||
                            type.id() == QMetaType::UShort || type.id() == QMetaType::UInt;
    const qint64 lowest = isUnsigned ? 0 : -(Q_INT64_C(1) << (bits - 1));
    return number >= lowest && number <= lowest + (Q_INT64_C(1) << bits) - 1;
}

// Whether the value, if it is a number at all, fits the type.
bool fits(const QVariant &value, QMetaType type)
{
    constexpr double beyond = 9223372036854775808.0; // 2 to the 63rd
    if (value.metaType().id() == QMetaType::Double || value.metaType().id() == QMetaType::Float) {
        const double number = value.toDouble();
        if (!std::isfinite(number) || number < -beyond || number >= beyond)
            return false;
    }
    // Beyond 63 bits an unsigned number would come out negative.
    const int kind = value.metaType().id();
    if ((kind == QMetaType::ULongLong || kind == QMetaType::ULong) &&
        value.toULongLong() > static_cast<quint64>(std::numeric_limits<qint64>::max()))
        return false;
    bool isNumber = false;
    const qint64 number = value.toLongLong(&isNumber);
    return !isNumber || holds(type, number);
}

bool isPointer(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsPointer) ||
           type.flags().testFlag(QMetaType::PointerToQObject);
}

} // namespace

bool isWholeNumber(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return true;
    default:
        return type.flags().testFlag(QMetaType::IsEnumeration);
    }
}

std::optional<QVariant> converted(const QVariant &value, QMetaType type)
{
    if (value.metaType() == type)
        return value;
    if (type == QMetaType::fromType<QVariant>())
        return QVariant(type, &value);
    const bool isNothing = !value.isValid() || value.metaType().id() == QMetaType::Nullptr;
    if (isNothing)
        return isPointer(type) ? std::optional(QVariant(type)) : std::nullopt;
    if (isWholeNumber(type) && !fits(value, type))
        return std::nullopt;
    if (auto record = RecordValue::converted(value, type, &converted))
        return record;
    QVariant result = value;
    if (!result.convert(type))
        return std::nullopt;
    const bool isLost = type.id() == QMetaType::Float && !std::isfinite(result.toDouble()) &&
                        std::isfinite(value.toDouble());
    return isLost ? std::nullopt : std::optional(result);
}

QVariant fromVariable(QMetaType type, const void *variable)
{
    if (type == QMetaType::fromType<QVariant>()) {
        const auto &held = *static_cast<const QVariant *>(variable);
        RecordValue::announce(held.metaType()); // no table names it
        return held;
    }
    return QVariant(type, variable);
}

} // namespace ORVTListview::ArgumentValue
