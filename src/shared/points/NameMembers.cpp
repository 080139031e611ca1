#include "members/HandedClass.h"
#include "members/MemberEntries.h"
#include <ORVTListview/IndexedName.h>

namespace ORVTListview {

using namespace MemberEntries;
using namespace Qt::StringLiterals;

namespace {

const MemberTable &nameTable()
{
    static const MemberTable table(u"IndexedName"_s,
                                   {
                                       readOnly<&IndexedName::Name>(u"Name"),
                                       readOnly<&IndexedName::NumberFormat>(u"NumberFormat"),
                                       readOnly<&IndexedName::LowerBound>(u"LowerBound"),
                                       readOnly<&IndexedName::UpperBound>(u"UpperBound"),
                                   });
    return table;
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

const MemberTable &collectionTable()
{
    static const MemberTable table(u"IndexedNameCollection"_s,
                                   readingMembers<IndexedNameCollection>(),
                                   {{.name = u"Item"_s, .range = u"1 to Count()"_s}});
    return table;
}

const MemberTable &listTable()
{
    static const MemberTable table(
        u"IndexedNameList"_s,
        QList{method<&IndexedNameList::Add>(u"Add", u"Name", u"NumberFormat", u"LowerBound",
                                            u"UpperBound")} +
            readingMembers<IndexedNameList>(),
        {{.name = u"Item"_s, .range = u"1 to Count()"_s}});
    return table;
}

const HandedClass handedName(QMetaType::fromType<IndexedName *>(), &nameTable);
const HandedClass handedCollection(QMetaType::fromType<IndexedNameCollection *>(),
                                   &collectionTable);
const HandedClass handedList(QMetaType::fromType<IndexedNameList *>(), &listTable);

// A list goes wherever a collection is taken.
[[maybe_unused]] const bool listsAreCollections =
    QMetaType::registerConverter<IndexedNameList *, IndexedNameCollection *>(
        [](IndexedNameList *list) -> IndexedNameCollection * { return list; });

} // namespace

} // namespace ORVTListview
