#include "shared/settings/SystemSettings.h"

#include "shared/settings/OverlaidSettings.h"
#include "shared/settings/RegistryHiveWindows.h"

namespace ORVTListview {
namespace {

std::unique_ptr<SettingsPlace> settingsOf(RegistryHive::Owner owner)
{
    return std::make_unique<RegistrySettings>(std::make_shared<RegistryHive>(owner));
}

} // namespace

std::unique_ptr<SettingsPlace> systemSettings()
{
    return std::make_unique<OverlaidSettings>(settingsOf(RegistryHive::Owner::Machine),
                                              settingsOf(RegistryHive::Owner::User));
}

} // namespace ORVTListview
