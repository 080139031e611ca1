#pragma once

#include "base/Failure.h"
#include <ORVTListview/PropertyBag.h>

namespace ORVTListview {

// Reads the values of a host's bag, whose failures are Errors of the member.
inline auto bagReader(const PropertyBag &bag, const QString &member)
{
    return [&bag, member](const QString &name, const QVariant &other) {
        return raisingErrors(member, [&] { return bag.ReadProperty(name, other); });
    };
}

} // namespace ORVTListview
