#pragma once

#include <ORVTListview/PropertyBag.h>

#include <QtCore/QJsonObject>

#include <memory>

namespace ORVTListview {

// Keeps properties in a JSON object: enumerations as numbers, everything else as
// QJsonValue::fromVariant writes it. A value that equals its default is left out;
// a value of another kind than the default reads as the default.
class ORVT_CORE_EXPORT JsonPropertyBag : public PropertyBag
{
public:
    explicit JsonPropertyBag(const QJsonObject &Object = QJsonObject());
    ~JsonPropertyBag() override;

    QVariant ReadProperty(const QString &Name, const QVariant &Default) const override;
    void WriteProperty(const QString &Name, const QVariant &Value,
                       const QVariant &Default) override;

    // What is kept, names that no component knows included.
    QJsonObject Object() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
