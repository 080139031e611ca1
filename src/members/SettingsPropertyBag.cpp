#include <ORVTListview/SettingsPropertyBag.h>

#include "members/PropertyValue.h"

#include <QtCore/QSettings>

namespace ORVTListview {

struct SettingsPropertyBag::Private
{
    QSettings &settings;
    QString group;

    QString key(const QString &name) const { return group.isEmpty() ? name : group + u'/' + name; }
};

SettingsPropertyBag::SettingsPropertyBag(QSettings &Settings, const QString &Group)
    : d(std::make_unique<Private>(Private{Settings, Group}))
{
}

SettingsPropertyBag::~SettingsPropertyBag() = default;

QVariant SettingsPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    return PropertyValue::readText(d->settings.value(d->key(Name)), Default);
}

void SettingsPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                        const QVariant &Default)
{
    if (Value == Default)
        d->settings.remove(d->key(Name));
    else
        d->settings.setValue(d->key(Name), PropertyValue::plain(Value));
}

} // namespace ORVTListview
