#include "shared/SystemSettings.h"

#include "shared/OverlaidSettings.h"
#include "shared/SettingsFile.h"
#include "shared/SettingsLocations.h"

namespace ORVTListview {

std::unique_ptr<SettingsPlace> systemSettings()
{
    return std::make_unique<OverlaidSettings>(std::make_unique<SettingsFile>(machineSettingsFile()),
                                              std::make_unique<SettingsFile>(userSettingsFile()));
}

} // namespace ORVTListview
