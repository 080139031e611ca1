#pragma once

#include <ORVTListview/PropertyBag.h>

#include <QtCore/QVariantMap>

namespace ORVTListview {

// Keeps properties in memory. A value that equals its default is left out; a value
// of another kind than the default reads as the default.
class ORVT_CORE_EXPORT MemoryPropertyBag : public PropertyBag
{
public:
    explicit MemoryPropertyBag(const QVariantMap &Values = QVariantMap());

    QVariant ReadProperty(const QString &Name, const QVariant &Default) const override;
    void WriteProperty(const QString &Name, const QVariant &Value,
                       const QVariant &Default) override;

    // What is kept, names that no component knows included.
    QVariantMap Values() const { return m_values; }

private:
    QVariantMap m_values;
};

} // namespace ORVTListview
