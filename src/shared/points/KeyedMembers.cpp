#include "members/HandedClass.h"
#include "members/IndexOrKey.h"
#include "members/MemberEntries.h"
#include <ORVTListview/KeyedCollection.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

template <typename T>
T item(const KeyedCollection<T> &collection, const QVariant &which)
{
    return byIndexOrKey(which, u"KeyedCollection.Item"_s,
                        [&](const auto &place) { return T(collection.Item(place)); });
}

template <typename T>
void remove(KeyedCollection<T> &collection, const QVariant &which)
{
    byIndexOrKey(which, u"KeyedCollection.Remove"_s,
                 [&](const auto &place) { collection.Remove(place); });
}

template <typename T>
QList<Member> keyedMembers()
{
    using Collection = KeyedCollection<T>;
    return {
        readOnly<&Collection::Count>(u"Count"),
        method<&Collection::Contains>(u"Contains", u"Key"),
        method<&item<T>>(u"Item", u"IndexOrKey"),
        method<&Collection::Key>(u"Key", u"Index"),
        readOnly<&Collection::Keys>(u"Keys"),
        method<&Collection::Add>(u"Add", u"Item", u"Key"),
        method<&remove<T>>(u"Remove", u"IndexOrKey"),
        method<&Collection::Clear>(u"Clear"),
    };
}

QList<MemberFacts> keyedFacts()
{
    const QString either = u"1 to Count(), or a key"_s;
    return {
        {.name = u"Item"_s,
         .range = either,
         .failures = {InvalidCall, SubscriptOutOfRange, TypeMismatch}},
        {.name = u"Key"_s, .range = u"1 to Count()"_s, .failures = {SubscriptOutOfRange}},
        {.name = u"Add"_s, .failures = {InvalidCall}},
        {.name = u"Remove"_s,
         .range = either,
         .failures = {InvalidCall, SubscriptOutOfRange, TypeMismatch}},
    };
}

const HandedClass handedTexts(QMetaType::fromType<KeyedCollection<QString>>(),
                              &keyedMembers<QString>, &keyedFacts);
const HandedClass handedNumbers(QMetaType::fromType<KeyedCollection<qint32>>(),
                                &keyedMembers<qint32>, &keyedFacts);

} // namespace

} // namespace ORVTListview
