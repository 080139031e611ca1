#include "shared/settings/SettingsLocations.h"

#include <QtCore/QStandardPaths>
#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

QString inFolder(const QString &folder)
{
    return folder + u"/Morvane Systems Inc/settings.ini"_s;
}

} // namespace

QString namedSettingsFile()
{
    return qEnvironmentVariable("ORVT_SETTINGS_FILE");
}

QString machineSettingsFile()
{
    // The user's folder, then the system's. The last is the one that all sessions
    // share; those before it may belong to one desktop.
    const QStringList folders =
        QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    return inFolder(folders.size() > 1 ? folders.last() : u"/etc/xdg"_s);
}

QString userSettingsFile()
{
    return inFolder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
}

} // namespace ORVTListview
