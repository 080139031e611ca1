#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "widgets/list/ListEvents.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/Error.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using List = ReportList;

QList<Member> rowMembers()
{
    return {
        readOnly<&List::ListItems>(u"ListItems"),
        readOnly<&List::ColumnHeaders>(u"ColumnHeaders"),
        method<&List::Add>(u"Add", optional(u"Index"), optional(u"Key"), optional(u"Text")),
        method<&List::Clear>(u"Clear"),
        method<&List::setRows>(u"setRows", u"rows"),
        method<&List::appendRows>(u"appendRows", u"rows"),
        method<&List::UpdateSubItems>(u"UpdateSubItems", u"Value", u"TagValue", u"SubIndex"),
        method<&List::FindItem>(u"FindItem", u"sz", optional(u"Where"), optional(u"Index", 1),
                                optional(u"fPartial")),
        method<&List::GetFirstVisible>(u"GetFirstVisible"),
        method<&List::HitTest>(u"HitTest", u"X", u"Y"),
        readWrite<&List::SelectedItem, &List::setSelectedItem>(u"SelectedItem"),
        method<&List::goToRow>(u"goToRow", u"Index"),
    };
}

QList<Member> mannerMembers()
{
    return {
        property<List, "MultiSelect">(),
        method<&List::StartLabelEdit>(u"StartLabelEdit"),
        method<&List::Refresh>(u"Refresh"),
        method<&List::Drag>(u"Drag", u"Action"),
        method<&List::fitColumns>(u"fitColumns"),
        method<&List::GetSubItemWidth>(u"GetSubItemWidth", u"Index"),
        readOnly<&List::grid>(u"grid"),
        property<List, "checkBoxes">(),
        property<List, "copiesRows">(),
        property<List, "editsLabels">(),
        readWrite<&List::labelColumn, &List::setLabelColumn>(u"labelColumn"),
        readWrite<&List::isHeaderVisible, &List::setHeaderVisible>(u"headerVisible"),
    };
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"Add"_s,
         .range = u"Index: 0 to Count() + 1"_s,
         .failures = {InvalidCall, SubscriptOutOfRange}},
        {.name = u"setRows"_s, .failures = {InvalidCall}},
        {.name = u"appendRows"_s, .failures = {InvalidCall}},
        {.name = u"UpdateSubItems"_s,
         .range = u"SubIndex: 1 to the number of columns less 1"_s,
         .failures = {SubscriptOutOfRange}},
        {.name = u"FindItem"_s,
         .range = u"Where: 0 to 2; fPartial: 0 to 1"_s,
         .failures = {InvalidCall}},
        {.name = u"HitTest"_s, .unit = u"twip"_s},
        {.name = u"SelectedItem"_s, .failures = {InvalidCall, ObjectNotSet}},
        {.name = u"goToRow"_s, .range = u"0 to Count()"_s, .failures = {SubscriptOutOfRange}},
        {.name = u"Drag"_s, .range = u"1 and 2"_s},
        {.name = u"GetSubItemWidth"_s, .unit = u"twip"_s, .range = u"Index: from 0"_s},
        {.name = u"labelColumn"_s, .range = u"from 0"_s, .failures = {SubscriptOutOfRange}},
    };
}

const HandedClass handed(QMetaType::fromType<ReportList *>(),
                         &together<rowMembers, mannerMembers, listEvents<List>>,
                         &together<facts, inputFacts>);

} // namespace

} // namespace ORVTListview
