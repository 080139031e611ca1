#include "members/RecordValue.h"

#include <QtCore/QAssociativeIterable>
#include <QtCore/QMetaProperty>
#include <QtCore/QSequentialIterable>

namespace ORVTListview::RecordValue {

namespace {

const QMetaType mapType = QMetaType::fromType<QVariantMap>();

bool isRecord(QMetaType type)
{
    return type.flags().testFlag(QMetaType::IsGadget) && type.metaObject();
}

bool toMap(QMetaType type, const void *record, void *map)
{
    const QMetaObject &meta = *type.metaObject();
    QVariantMap fields;
    for (int i = 0; i < meta.propertyCount(); ++i)
        fields.insert(QString::fromLatin1(meta.property(i).name()),
                      meta.property(i).readOnGadget(record));
    *static_cast<QVariantMap *>(map) = fields;
    return true;
}

// In any letter case, as members are found.
QMetaProperty fieldNamed(const QMetaObject &meta, const QString &name)
{
    for (int i = 0; i < meta.propertyCount(); ++i) {
        const auto field = QLatin1StringView(meta.property(i).name());
        if (name.compare(field, Qt::CaseInsensitive) == 0)
            return meta.property(i);
    }
    return {};
}

std::optional<QVariant> record(const QVariantMap &fields, QMetaType type, Convert convert)
{
    QVariant made(type);
    for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
        const QMetaProperty property = fieldNamed(*type.metaObject(), field.key());
        if (!property.isValid())
            return std::nullopt;
        const auto value = convert(field.value(), property.metaType());
        if (!value || !property.writeOnGadget(made.data(), *value))
            return std::nullopt;
    }
    return made;
}

std::optional<QVariant> sequence(const QVariantList &values, QMetaType type, Convert convert)
{
    QVariant made(type);
    auto view = made.view<QSequentialIterable>();
    for (const QVariant &each : values) {
        const auto value = convert(each, view.valueMetaType());
        if (!value)
            return std::nullopt;
        view.addValue(*value);
    }
    return made;
}

std::optional<QVariant> association(const QVariantMap &values, QMetaType type, Convert convert)
{
    QVariant made(type);
    auto view = made.view<QAssociativeIterable>();
    const QMetaType mapped = view.metaContainer().mappedMetaType();
    for (auto each = values.cbegin(); each != values.cend(); ++each) {
        const auto value = convert(each.value(), mapped);
        if (!value)
            return std::nullopt;
        view.setValue(each.key(), *value);
    }
    return made;
}

// Of the toolkit's own types even a text can be gone through; these convert by themselves.
template <typename Iterable>
bool isSeenAs(QMetaType type)
{
    return type.id() >= QMetaType::User &&
           QMetaType::canView(type, QMetaType::fromType<Iterable>());
}

} // namespace

void announce(QMetaType announced)
{
    if (!announced.isValid())
        return;
    announced.id(); // registers what containers can do
    if (isRecord(announced) && !QMetaType::hasRegisteredConverterFunction(announced, mapType)) {
        const auto make = [announced](const void *from, void *to) {
            return toMap(announced, from, to);
        };
        QMetaType::registerConverterFunction(make, announced, mapType);
    }
    QVariant made(announced);
    if (isSeenAs<QSequentialIterable>(announced))
        announce(made.view<QSequentialIterable>().valueMetaType());
    else if (isSeenAs<QAssociativeIterable>(announced))
        announce(made.view<QAssociativeIterable>().metaContainer().mappedMetaType());
}

std::optional<QVariant> converted(const QVariant &value, QMetaType type, Convert convert)
{
    const int kind = value.metaType().id();
    if (kind == QMetaType::QVariantMap && isRecord(type))
        return record(value.toMap(), type, convert);
    if (kind == QMetaType::QVariantList && isSeenAs<QSequentialIterable>(type))
        return sequence(value.toList(), type, convert);
    if (kind == QMetaType::QVariantMap && isSeenAs<QAssociativeIterable>(type))
        return association(value.toMap(), type, convert);
    return std::nullopt;
}

} // namespace ORVTListview::RecordValue
