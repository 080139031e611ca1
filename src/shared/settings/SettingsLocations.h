#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// The file that the environment variable ORVT_SETTINGS_FILE names; empty without.
QString namedSettingsFile();

// Where the settings of all users of this machine stand, and those of a user who
// may not write there. The files need not exist.
QString machineSettingsFile();
QString userSettingsFile();

} // namespace ORVTListview
