#include "shared/points/DisplayNames.h"

#include <array>

namespace ORVTListview {

QString displayName(qint32 type)
{
    static const std::array<QString, highestType + 1> names{
        QStringLiteral("Code"),
        QStringLiteral("Variables"),
        QStringLiteral("Constants"),
        QStringLiteral("Inputs"),
        QStringLiteral("Outputs"),
        QStringLiteral("Controllers"),
        QStringLiteral("Logs"),
        QStringLiteral("Timers"),
        QStringLiteral("Optimum Starts"),
        QStringLiteral("Network Var Inputs"),
        QStringLiteral("Network Var Outputs"),
        QStringLiteral("Input Parameters"),
        QStringLiteral("Output Parameters"),
    };
    return isType(type) ? names[static_cast<std::size_t>(type)] : QString();
}

} // namespace ORVTListview
