#include "shared/settings/OverlaidSettings.h"

#include <utility>

namespace ORVTListview {
namespace {

class OverlaidView final : public SettingsView
{
public:
    OverlaidView(std::unique_ptr<const SettingsView> machine,
                 std::unique_ptr<const SettingsView> user)
        : m_machine(std::move(machine))
        , m_user(std::move(user))
    {
    }

    std::optional<QString> value(const SettingKey &key) const override
    {
        const std::optional<QString> own = m_user->value(key);
        return own ? own : m_machine->value(key);
    }

private:
    std::unique_ptr<const SettingsView> m_machine;
    std::unique_ptr<const SettingsView> m_user;
};

SettingChanges removals(const SettingChanges &changes)
{
    SettingChanges removed = changes;
    for (SettingChange &change : removed)
        change.value.reset();
    return removed;
}

} // namespace

OverlaidSettings::OverlaidSettings(std::unique_ptr<SettingsPlace> machine,
                                   std::unique_ptr<SettingsPlace> user)
    : m_machine(std::move(machine))
    , m_user(std::move(user))
{
}

std::unique_ptr<const SettingsView> OverlaidSettings::view() const
{
    return std::make_unique<OverlaidView>(m_machine->view(), m_user->view());
}

bool OverlaidSettings::write(const SettingChanges &changes)
{
    if (!m_machine->write(changes))
        return m_user->write(changes);
    // In this order a process that ends in between loses nothing.
    return m_user->isOneWith(*m_machine) || m_user->write(removals(changes));
}

} // namespace ORVTListview
