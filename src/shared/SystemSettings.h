#pragma once

#include "shared/SettingsPlace.h"

namespace ORVTListview {

// The system's usual place for the settings of a machine and its users.
std::unique_ptr<SettingsPlace> systemSettings();

} // namespace ORVTListview
