#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/PointCollection.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

// Nothing for a point that is not there.
QVariant optionalPoint(const std::optional<Point> &point)
{
    return point ? QVariant::fromValue(*point) : QVariant();
}

QVariant item(const PointCollection &points, qint32 index)
{
    return optionalPoint(points.Item(index));
}

// The collections are asked by names in upper case.
QVariant found(const PointCollection &points, const QString &key)
{
    return optionalPoint(points.Find(key.toUpper()));
}

QList<Member> collectionMembers()
{
    return {
        readOnly<&PointCollection::Count>(u"Count"),
        method<&item>(u"Item", u"Index"),
        method<&found>(u"Find", u"Key"),
    };
}

QList<MemberFacts> collectionFacts()
{
    return {{.name = u"Item"_s, .range = u"1 to Count()"_s}};
}

// As PointList is one, but at its own address.
QVariant itemOfList(const PointList &points, qint32 index)
{
    return item(points, index);
}

QVariant foundInList(const PointList &points, const QString &key)
{
    return found(points, key);
}

QList<Member> listMembers()
{
    return {
        method<&PointList::Add>(u"Add", u"Name", optional(u"Data")),
        method<&PointList::Remove>(u"Remove", u"Key"),
        method<&PointList::Clear>(u"Clear"),
        readOnly<&PointList::Count>(u"Count"),
        method<&itemOfList>(u"Item", u"Index"),
        method<&foundInList>(u"Find", u"Key"),
    };
}

QList<MemberFacts> listFacts()
{
    return {
        {.name = u"Add"_s, .failures = {InvalidCall}},
        {.name = u"Remove"_s, .failures = {InvalidCall}},
        {.name = u"Item"_s, .range = u"1 to Count()"_s},
    };
}

const HandedClass handedCollection(QMetaType::fromType<PointCollection *>(), &collectionMembers,
                                   &collectionFacts);
const HandedClass handedList(QMetaType::fromType<PointList *>(), &listMembers, &listFacts);

// A list goes wherever a collection is taken.
[[maybe_unused]] const bool listsAreCollections =
    QMetaType::registerConverter<PointList *, PointCollection *>(
        [](PointList *list) -> PointCollection * { return list; });

} // namespace

} // namespace ORVTListview
