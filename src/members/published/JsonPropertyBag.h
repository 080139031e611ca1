#pragma once

#include <ORVTListview/PropertyBag.h>

#include <QtCore/QJsonObject>

namespace ORVTListview {

// Keeps properties in a JSON object: enumerations as numbers, everything else as
// QJsonValue::fromVariant writes it. A value that equals its default is left out;
// a value of another kind than the default reads as the default.
class ORVT_CORE_EXPORT JsonPropertyBag : public PropertyBag
{
public:
    explicit JsonPropertyBag(const QJsonObject &Object = QJsonObject());

    QVariant ReadProperty(const QString &Name, const QVariant &Default) const override;
    void WriteProperty(const QString &Name, const QVariant &Value,
                       const QVariant &Default) override;

    // What is kept, names that no component knows included.
    QJsonObject Object() const { return m_object; }

private:
    QJsonObject m_object;
};

} // namespace ORVTListview
