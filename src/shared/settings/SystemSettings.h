#pragma once

#include "shared/settings/SettingsPlace.h"

namespace ORVTListview {

// The system's usual place for the settings of a machine and its users.
std::unique_ptr<SettingsPlace> systemSettings();

} // namespace ORVTListview
