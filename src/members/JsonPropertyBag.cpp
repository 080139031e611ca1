#include <ORVTListview/JsonPropertyBag.h>

#include "members/PropertyValue.h"

namespace ORVTListview {

struct JsonPropertyBag::Private
{
    QJsonObject object;
};

JsonPropertyBag::JsonPropertyBag(const QJsonObject &Object)
    : d(std::make_unique<Private>(Private{Object}))
{
}

JsonPropertyBag::~JsonPropertyBag() = default;

QJsonObject JsonPropertyBag::Object() const
{
    return d->object;
}

QVariant JsonPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    const auto kept = d->object.constFind(Name);
    return kept == d->object.constEnd() ? Default : PropertyValue::read(kept->toVariant(), Default);
}

void JsonPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                    const QVariant &Default)
{
    if (Value == Default)
        d->object.remove(Name);
    else
        d->object.insert(Name, QJsonValue::fromVariant(PropertyValue::plain(Value)));
}

} // namespace ORVTListview
