#pragma once

#include "members/HandedClass.h"
#include "members/IndexOrKey.h"
#include "members/MemberEntries.h"
#include <ORVTListview/Error.h>

// The entries that rows, columns and nodes have alike, and their collections.

namespace ORVTListview::MemberEntries {

template <typename Handle>
QList<Member> elementMembers()
{
    return {
        readOnly<&Handle::isAlive, Handle>(u"isAlive"),
        readOnly<&Handle::Index, Handle>(u"Index"),
        readWrite<&Handle::Key, &Handle::setKey, Handle>(u"Key"),
        readWrite<&Handle::Text, &Handle::setText, Handle>(u"Text"),
    };
}

inline QList<MemberFacts> elementFacts()
{
    return {
        {.name = QStringLiteral("Index"),
         .range = QStringLiteral("1 to Count()"),
         .failures = {ObjectNotSet}},
        {.name = QStringLiteral("Key"), .failures = {InvalidCall, ObjectNotSet}},
        {.name = QStringLiteral("Text"), .failures = {ObjectNotSet}},
    };
}

template <typename Collection>
auto *itemOf(const Collection &collection, const QVariant &which)
{
    return byIndexOrKey(which, QStringLiteral("Item"),
                        [&](const auto &place) { return collection.Item(place); });
}

template <typename Collection>
void removeFrom(Collection &collection, const QVariant &which)
{
    byIndexOrKey(which, QStringLiteral("Remove"),
                 [&](const auto &place) { collection.Remove(place); });
}

template <typename Collection>
QList<Member> collectionMembers()
{
    return {
        readOnly<&Collection::Count, Collection>(u"Count"),
        method<&itemOf<Collection>>(u"Item", u"IndexOrKey"),
        method<&removeFrom<Collection>>(u"Remove", u"IndexOrKey"),
        method<&Collection::Clear, Collection>(u"Clear"),
    };
}

inline QList<MemberFacts> collectionFacts()
{
    const QString range = QStringLiteral("1 to Count(), or a key");
    const QList<qint32> failures{InvalidCall, SubscriptOutOfRange, TypeMismatch};
    return {
        {.name = QStringLiteral("Item"), .range = range, .failures = failures},
        {.name = QStringLiteral("Remove"), .range = range, .failures = failures},
    };
}

} // namespace ORVTListview::MemberEntries
