#pragma once

#include <ORVTListview/CoreExport.h>

#include <QtCore/QString>

namespace ORVTListview {

// The file that the environment variable ORVT_SETTINGS_FILE names; empty without.
ORVT_CORE_EXPORT QString namedSettingsFile();

// Where the settings of all users of this machine stand, and those of a user who
// may not write there. The files need not exist.
ORVT_CORE_EXPORT QString machineSettingsFile();
ORVT_CORE_EXPORT QString userSettingsFile();

} // namespace ORVTListview
