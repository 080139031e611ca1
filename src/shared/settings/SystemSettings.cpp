#include "shared/settings/SystemSettings.h"

#include "shared/settings/OverlaidSettings.h"
#include "shared/settings/SettingsFile.h"
#include "shared/settings/SettingsLocations.h"

namespace ORVTListview {

std::unique_ptr<SettingsPlace> systemSettings()
{
    return std::make_unique<OverlaidSettings>(std::make_unique<SettingsFile>(machineSettingsFile()),
                                              std::make_unique<SettingsFile>(userSettingsFile()));
}

} // namespace ORVTListview
