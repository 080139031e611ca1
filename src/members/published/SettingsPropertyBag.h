#pragma once

#include <ORVTListview/PropertyBag.h>

#include <memory>

QT_BEGIN_NAMESPACE
class QSettings;
QT_END_NAMESPACE

namespace ORVTListview {

// Keeps properties in a group of the host's settings, as "Group/Name", or "Name"
// without a group. A value that equals its default is left out; texts are read as
// what the default is, and a text that is no such thing reads as the default.
class ORVT_CORE_EXPORT SettingsPropertyBag : public PropertyBag
{
public:
    // Settings outlives the bag. The group is relative to the one that is current
    // in Settings at each call.
    explicit SettingsPropertyBag(QSettings &Settings, const QString &Group = QString());
    ~SettingsPropertyBag() override;

    QVariant ReadProperty(const QString &Name, const QVariant &Default) const override;
    void WriteProperty(const QString &Name, const QVariant &Value,
                       const QVariant &Default) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ORVTListview
