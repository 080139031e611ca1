#include "members/PropertyValue.h"

#include "members/ArgumentValue.h"

#include <cmath>

namespace ORVTListview::PropertyValue {

using namespace Qt::StringLiterals;

namespace {

enum class Kind { Truth, WholeNumber, Number, Text, Other };

Kind kindOf(QMetaType type)
{
    if (ArgumentValue::isWholeNumber(type))
        return Kind::WholeNumber;
    switch (type.id()) {
    case QMetaType::Bool:
        return Kind::Truth;
    case QMetaType::Float:
    case QMetaType::Double:
        return Kind::Number;
    case QMetaType::QString:
        return Kind::Text;
    default:
        return Kind::Other;
    }
}

// JSON has one kind of number only.
bool isWhole(const QVariant &value)
{
    const Kind kind = kindOf(value.metaType());
    return kind == Kind::WholeNumber ||
           (kind == Kind::Number && std::trunc(value.toDouble()) == value.toDouble());
}

bool isOfKind(const QVariant &value, QMetaType type)
{
    const Kind kind = kindOf(value.metaType());
    switch (kindOf(type)) {
    case Kind::WholeNumber:
        return isWhole(value);
    case Kind::Number:
        return kind == Kind::Number || kind == Kind::WholeNumber;
    case Kind::Other:
        return value.metaType() == type;
    case Kind::Truth:
    case Kind::Text:
        break;
    }
    return kind == kindOf(type);
}

// The value that a text stands for, if it is one of that type.
QVariant parsed(const QString &text, QMetaType type)
{
    bool isNumber = false;
    switch (kindOf(type)) {
    case Kind::Truth:
        if (text == u"true"_s || text == u"1"_s)
            return true;
        return text == u"false"_s || text == u"0"_s ? QVariant(false) : QVariant();
    case Kind::WholeNumber: {
        const qint64 number = text.toLongLong(&isNumber);
        return isNumber ? QVariant(number) : QVariant();
    }
    case Kind::Number: {
        const double number = text.toDouble(&isNumber);
        return isNumber ? QVariant(number) : QVariant();
    }
    case Kind::Text:
    case Kind::Other:
        break;
    }
    return text;
}

} // namespace

QVariant read(const QVariant &kept, const QVariant &Default)
{
    if (!kept.isValid())
        return Default;
    if (!Default.isValid())
        return kept;
    if (!isOfKind(kept, Default.metaType()))
        return Default;
    return ArgumentValue::converted(kept, Default.metaType()).value_or(Default);
}

QVariant readText(const QVariant &kept, const QVariant &Default)
{
    const bool isText = kept.metaType().id() == QMetaType::QString;
    return read(isText ? parsed(kept.toString(), Default.metaType()) : kept, Default);
}

QVariant plain(const QVariant &value)
{
    const bool isEnumeration = value.metaType().flags().testFlag(QMetaType::IsEnumeration);
    return isEnumeration ? QVariant(value.toInt()) : value;
}

} // namespace ORVTListview::PropertyValue
