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

template <typename Collection>
QVariant item(const Collection &points, qint32 index)
{
    return optionalPoint(points.Item(index));
}

// The collections are asked by names in upper case.
template <typename Collection>
QVariant found(const Collection &points, const QString &key)
{
    return optionalPoint(points.Find(key.toUpper()));
}

template <typename Collection>
QList<Member> readingMembers()
{
    return {
        readOnly<&Collection::Count>(u"Count"),
        method<&item<Collection>>(u"Item", u"Index"),
        method<&found<Collection>>(u"Find", u"Key"),
    };
}

QList<MemberFacts> readingFacts()
{
    return {{.name = u"Item"_s, .range = u"1 to Count()"_s}};
}

QList<Member> changingMembers()
{
    return {
        method<&PointList::Add>(u"Add", u"Name", optional(u"Data")),
        method<&PointList::Remove>(u"Remove", u"Key"),
        method<&PointList::Clear>(u"Clear"),
    };
}

QList<MemberFacts> changingFacts()
{
    return {
        {.name = u"Add"_s, .failures = {InvalidCall}},
        {.name = u"Remove"_s, .failures = {InvalidCall}},
    };
}

const HandedClass handedCollection(QMetaType::fromType<PointCollection *>(),
                                   &readingMembers<PointCollection>, &readingFacts);
const HandedClass handedList(QMetaType::fromType<PointList *>(),
                             &together<changingMembers, readingMembers<PointList>>,
                             &together<changingFacts, readingFacts>);

// A list goes wherever a collection is taken.
[[maybe_unused]] const bool listsAreCollections =
    QMetaType::registerConverter<PointList *, PointCollection *>(
        [](PointList *list) -> PointCollection * { return list; });

} // namespace

} // namespace ORVTListview
