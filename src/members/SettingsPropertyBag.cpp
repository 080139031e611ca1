#include <ORVTListview/SettingsPropertyBag.h>

#include "members/PropertyValue.h"

#include <QtCore/QSettings>

namespace ORVTListview {

SettingsPropertyBag::SettingsPropertyBag(QSettings &Settings, const QString &Group)
    : m_settings(Settings)
    , m_group(Group)
{
}

QVariant SettingsPropertyBag::ReadProperty(const QString &Name, const QVariant &Default) const
{
    return PropertyValue::readText(m_settings.value(key(Name)), Default);
}

void SettingsPropertyBag::WriteProperty(const QString &Name, const QVariant &Value,
                                        const QVariant &Default)
{
    if (Value == Default)
        m_settings.remove(key(Name));
    else
        m_settings.setValue(key(Name), PropertyValue::plain(Value));
}

QString SettingsPropertyBag::key(const QString &name) const
{
    return m_group.isEmpty() ? name : m_group + u'/' + name;
}

} // namespace ORVTListview
