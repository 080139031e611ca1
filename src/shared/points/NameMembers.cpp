#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/IndexedName.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

QList<Member> nameMembers()
{
    return {
        readOnly<&IndexedName::Name>(u"Name"),
        readOnly<&IndexedName::NumberFormat>(u"NumberFormat"),
        readOnly<&IndexedName::LowerBound>(u"LowerBound"),
        readOnly<&IndexedName::UpperBound>(u"UpperBound"),
    };
}

// Hosts without types know nothing of const; no member of IndexedName changes it.
template <typename Collection>
IndexedName *item(const Collection &names, qint32 index)
{
    return const_cast<IndexedName *>(names.Item(index));
}

template <typename Collection>
QList<Member> readingMembers()
{
    return {
        readOnly<&Collection::Count>(u"Count"),
        method<&item<Collection>>(u"Item", u"Index"),
    };
}

QList<MemberFacts> readingFacts()
{
    return {{.name = u"Item"_s, .range = u"1 to Count()"_s}};
}

QList<Member> addingMembers()
{
    return {method<&IndexedNameList::Add>(u"Add", u"Name", u"NumberFormat", u"LowerBound",
                                          u"UpperBound")};
}

const HandedClass handedName(QMetaType::fromType<IndexedName *>(), &nameMembers);
const HandedClass handedCollection(QMetaType::fromType<IndexedNameCollection *>(),
                                   &readingMembers<IndexedNameCollection>, &readingFacts);
const HandedClass handedList(QMetaType::fromType<IndexedNameList *>(),
                             &together<addingMembers, readingMembers<IndexedNameList>>,
                             &readingFacts);

// A list goes wherever a collection is taken.
[[maybe_unused]] const bool listsAreCollections =
    QMetaType::registerConverter<IndexedNameList *, IndexedNameCollection *>(
        [](IndexedNameList *list) -> IndexedNameCollection * { return list; });

} // namespace

} // namespace ORVTListview
