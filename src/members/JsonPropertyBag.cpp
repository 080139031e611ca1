#include <ORVTListview/JsonPropertyBag.h>

#include "members/PropertyValue.h"

namespace ORVTListview {

JsonPropertyBag::JsonPropertyBag(const QJsonObject &Object)
    : m_object(Object)
{
}

QVariant JsonPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    const auto kept = m_object.constFind(Name);
    return kept == m_object.constEnd() ? Default : PropertyValue::read(kept->toVariant(), Default);
}

void JsonPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                    const QVariant &Default)
{
    if (Value == Default)
        m_object.remove(Name);
    else
        m_object.insert(Name, QJsonValue::fromVariant(PropertyValue::plain(Value)));
}

} // namespace ORVTListview
