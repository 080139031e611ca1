#include <ORVTListview/ORVTreeview.h>

#include "members/DeclaredEntries.h"
#include "members/HandedClass.h"
#include "members/InputEvents.h"
#include "members/TextMembers.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Tree = ORVTreeview;

QList<Member> treeMembers()
{
    return {
        method<&Tree::SetNodeForeColor>(u"SetNodeForeColor", u"Index", u"Color"),
        readOnly<&Tree::Nodes>(u"Nodes"),
        property<Tree, "SelectedItem">(),
        method<&Tree::HitTest>(u"HitTest", u"X", u"Y"),
        writeOnly<&Tree::setIsSqrtSupported>(u"IsSqrtSupported"),
        method<&Tree::OLEDrag>(u"OLEDrag"),
        method<&Tree::isDesignMode>(u"isDesignMode"),
        method<&Tree::setDesignMode>(u"setDesignMode", u"on"),
    };
}

QList<Member> pageMembers()
{
    return {
        method<&Tree::GetPageSettings>(u"GetPageSettings"),
        method<&Tree::GetPageNumber>(u"GetPageNumber", u"tvNode"),
        method<&Tree::GetItemsBound>(u"GetItemsBound"),
        method<&Tree::GetItemKey>(u"GetItemKey", u"Index"),
        method<&Tree::GetLWTypeKeyCollection>(u"GetLWTypeKeyCollection"),
        method<&Tree::GetLWTypeIndexCollection>(u"GetLWTypeIndexCollection"),
        method<&Tree::SetCollectionRenamable>(u"SetCollectionRenamable", u"fParent", u"ColVars",
                                              u"ColConsts", u"ColInputs", u"ColOutputs",
                                              u"ColNvis"),
        writeOnly<&Tree::setStringIndexCollection>(u"StringIndexCollection"),
        method<&Tree::Init_Values>(u"Init_Values", u"Inputs", u"Outputs", u"Constants",
                                   u"Variables", u"Controllers", u"Schedules", u"Timers", u"Oss",
                                   u"FPAInputs", u"FPAOutputs"),
    };
}

QList<Member> nodeEvents()
{
    return {
        raises<&Tree::AfterLabelEdit>(1, u"AfterLabelEdit", u"Cancel", u"NewString"),
        raises<&Tree::BeforeLabelEdit>(2, u"BeforeLabelEdit", u"Cancel"),
        raises<&Tree::Click>(3, u"Click", u"Node"),
        raises<&Tree::Collapse>(4, u"Collapse", u"Node"),
        raises<&Tree::DblClick>(5, u"DblClick", u"Node"),
        raises<&Tree::Expand>(6, u"Expand", u"Node"),
    };
}

QList<Member> choiceEvents()
{
    return {
        raises<&Tree::NodeCheck>(13, u"NodeCheck", u"Node"),
        raises<&Tree::NodeClick>(14, u"NodeClick", u"Node"),
    };
}

QList<Member> events()
{
    return nodeEvents() + keyEvents<Tree>(7) + mouseEvents<Tree>(10) + choiceEvents() +
           dragEvents<Tree>(15) + QList{raises<&Tree::UpdatePages>(21, u"UpdatePages", u"Pages")};
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"SetNodeForeColor"_s,
         .unit = u"Color: colour"_s,
         .range = u"Index: 0 to 12; others are ignored"_s,
         .failures = {InvalidCall}},
        {.name = u"SelectedItem"_s, .failures = {InvalidCall, ObjectNotSet}},
        {.name = u"HitTest"_s, .unit = u"twip"_s},
        {.name = u"IsSqrtSupported"_s,
         .range = u"\"true\", \"false\" or a number"_s,
         .failures = {TypeMismatch}},
        {.name = u"GetPageNumber"_s, .failures = {Overflow, TypeMismatch, ObjectNotSet}},
        {.name = u"GetItemKey"_s, .range = u"0 to 12; empty for others"_s},
        {.name = u"StringIndexCollection"_s, .failures = {InvalidCall, Overflow}},
        {.name = u"Init_Values"_s, .unit = u"points"_s},
    };
}

const HandedClass handed(QMetaType::fromType<ORVTreeview *>(),
                         &together<treeMembers, textMembers<Tree>, pageMembers, events>,
                         &together<facts, inputFacts>);

} // namespace

const MemberTable &ORVTreeview::Members() const
{
    return handed.table();
}

} // namespace ORVTListview
