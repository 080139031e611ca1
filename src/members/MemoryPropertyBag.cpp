#include <ORVTListview/MemoryPropertyBag.h>

#include "members/PropertyValue.h"

namespace ORVTListview {

MemoryPropertyBag::MemoryPropertyBag(const QVariantMap &Values)
    : m_values(Values)
{
}

QVariant MemoryPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    return PropertyValue::read(m_values.value(Name), Default);
}

void MemoryPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                      const QVariant &Default)
{
    if (Value == Default)
        m_values.remove(Name);
    else
        m_values.insert(Name, Value);
}

} // namespace ORVTListview
