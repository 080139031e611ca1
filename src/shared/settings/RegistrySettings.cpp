#include "shared/settings/RegistrySettings.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

QString pathOf(const SettingKey &key)
{
    return u"Software\\Morvane Systems Inc\\"_s + key.application;
}

class RegistryView final : public SettingsView
{
public:
    explicit RegistryView(std::shared_ptr<const Registry> registry)
        : m_registry(std::move(registry))
    {
    }

    std::optional<QString> value(const SettingKey &key) const override
    {
        std::optional<QString> data = m_registry->data(pathOf(key), key.name);
        // Other writers may have stored the text without its end.
        if (data && data->endsWith(QChar(u'\0')))
            data->chop(1);
        return data;
    }

private:
    std::shared_ptr<const Registry> m_registry;
};

} // namespace

Registry::~Registry() = default;

RegistrySettings::RegistrySettings(std::shared_ptr<Registry> registry)
    : m_registry(std::move(registry))
{
}

std::unique_ptr<const SettingsView> RegistrySettings::view() const
{
    return std::make_unique<RegistryView>(m_registry);
}

bool RegistrySettings::write(const SettingChanges &changes)
{
    QList<Former> formers;
    for (const SettingChange &change : changes) {
        const QString path = pathOf(change.key);
        formers.append({change.key, m_registry->data(path, change.key.name)});
        if (write(change))
            continue;
        formers.removeLast();
        putBack(formers);
        return false;
    }
    return true;
}

void RegistrySettings::putBack(const QList<Former> &formers)
{
    for (auto former = formers.crbegin(); former != formers.crend(); ++former) {
        const QString path = pathOf(former->key);
        if (former->data)
            m_registry->setData(path, former->key.name, *former->data);
        else if (m_registry->data(path, former->key.name))
            m_registry->remove(path, former->key.name);
    }
}

bool RegistrySettings::write(const SettingChange &change)
{
    const QString path = pathOf(change.key);
    const std::optional<QString> data = m_registry->data(path, change.key.name);
    if (!change.value)
        return !data || m_registry->remove(path, change.key.name);
    const QString wanted = *change.value + QChar(u'\0');
    return data == wanted || m_registry->setData(path, change.key.name, wanted);
}

} // namespace ORVTListview
