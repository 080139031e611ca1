#include "workbench/settings/DesktopFollowing.h"

namespace ORVTListview {

// Without a bus the desktop tells nobody.
void followDesktop(QObject &) {}

} // namespace ORVTListview
