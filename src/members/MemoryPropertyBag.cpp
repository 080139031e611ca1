#include <ORVTListview/MemoryPropertyBag.h>

#include "members/PropertyValue.h"

namespace ORVTListview {

struct MemoryPropertyBag::Private
{
    QVariantMap values;
};

MemoryPropertyBag::MemoryPropertyBag(const QVariantMap &Values)
    : d(std::make_unique<Private>(Private{Values}))
{
}

MemoryPropertyBag::~MemoryPropertyBag() = default;

QVariantMap MemoryPropertyBag::Values() const
{
    return d->values;
}

QVariant MemoryPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    return PropertyValue::read(d->values.value(Name), Default);
}

void MemoryPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                      const QVariant &Default)
{
    if (Value == Default)
        d->values.remove(Name);
    else
        d->values.insert(Name, Value);
}

} // namespace ORVTListview
