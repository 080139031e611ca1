#pragma once

#include <QtCore/QString>

// What the collections of a view refuse, in the same words for rows, columns and
// nodes. The member is the one that a host has called.

namespace ORVTListview::Lookup {

void checkIndex(const QString &member, const QString &kind, qint32 index, qint32 count);
void checkKeyIsFree(const QString &member, const QString &key, bool isUsed);
[[noreturn]] void refuseKey(const QString &member, const QString &kind, const QString &key);

// What was found with that key, if anything was.
template <typename Held>
Held &required(Held *found, const QString &member, const QString &kind, const QString &key)
{
    if (!found)
        refuseKey(member, kind, key);
    return *found;
}

} // namespace ORVTListview::Lookup
