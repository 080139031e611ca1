#pragma once

#include "members/MemberEntries.h"

// The entries by which a host has a component say its texts in the language in force.

namespace ORVTListview::MemberEntries {

template <typename Component>
QList<Member> textMembers()
{
    return {
        method<&Component::InitStrings>(u"InitStrings"),
        method<&Component::ReInitializeStrings>(u"ReInitializeStrings"),
    };
}

} // namespace ORVTListview::MemberEntries
