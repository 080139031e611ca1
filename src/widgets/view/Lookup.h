#pragma once

#include <QtCore/QString>

// What the collections of a view refuse, in the same words for rows, columns and
// nodes.

namespace ORVTListview {

// The member that a host has called. Its name is put together only to refuse.
struct CalledMember
{
    QStringView object;
    const char *member = "";

    QString name() const;
};

namespace Lookup {

void checkIndex(const CalledMember &member, QStringView kind, qint32 index, qint32 count);
void checkKeyIsFree(const CalledMember &member, const QString &key, bool isUsed);
[[noreturn]] void refuseKey(const CalledMember &member, QStringView kind, const QString &key);

// What was found with that key, if anything was.
template <typename Held>
Held &required(Held *found, const CalledMember &member, QStringView kind, const QString &key)
{
    if (!found)
        refuseKey(member, kind, key);
    return *found;
}

// The position, from 0, of what is to be put before the one at an index; 0 is the end.
int newPosition(const CalledMember &member, QStringView kind, qint32 index, qint32 count);

} // namespace Lookup
} // namespace ORVTListview
