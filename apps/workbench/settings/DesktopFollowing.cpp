#include "workbench/settings/DesktopFollowing.h"

#include "workbench/settings/DesktopScheme.h"
#include "workbench/settings/Theme.h"

namespace ORVTListview {

void followDesktop(QObject &owner)
{
    if (!DesktopScheme::hasBus())
        return;
    auto *desktop = new DesktopScheme(QDBusConnection::sessionBus(), &owner);
    QObject::connect(desktop, &DesktopScheme::changed, desktop,
                     [desktop] { setDesktopDark(desktop->isDark()); });
}

} // namespace ORVTListview
