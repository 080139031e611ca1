#include <ORVTListview/ORVDataCombo.h>

#include "members/HandedClass.h"
#include "members/InputEvents.h"
#include "members/TextMembers.h"

namespace ORVTListview {

using namespace MemberEntries;

namespace {

using Combo = ORVDataCombo;

QList<Member> comboMembers()
{
    return {
        method<&Combo::FillDataListview>(u"FillDataListview", u"TypeIndex", u"LvIndex", u"ErrMsg"),
        method<&Combo::SetListIndex>(u"SetListIndex", u"Data"),
        method<&Combo::ItemData>(u"ItemData", u"Index"),
        readOnly<&Combo::ListCount>(u"ListCount"),
        readOnly<&Combo::ListIndex>(u"ListIndex"),
        readWrite<&Combo::Text, &Combo::setText>(u"Text"),
        readWrite<&Combo::Enabled, &Combo::setEnabled>(u"Enabled"),
        method<&Combo::Clear>(u"Clear"),
        method<&Combo::ResetbackColor>(u"ResetbackColor", u"Color"),
        method<&Combo::UpdateListWidth>(u"UpdateListWidth"),
        writeOnly<&Combo::setFormParentHandle>(u"FormParentHandle"),
        readWrite<&Combo::dragsEntry, &Combo::setDragsEntry>(u"dragsEntry"),
    };
}

QList<Member> comboEvents()
{
    return QList{raises<&Combo::Change>(1, u"Change")} + clickEvents<Combo>(2) +
           keyEvents<Combo>(4) + dragEvents<Combo>(7) +
           QList{raises<&Combo::picked>(13, u"picked")};
}

QList<MemberFacts> facts()
{
    return {
        {.name = u"FillDataListview"_s, .range = u"TypeIndex: 1 to 4; others change nothing"_s},
        {.name = u"ItemData"_s, .range = u"0 to ListCount less 1; 0 outside"_s},
        {.name = u"ListCount"_s, .unit = u"points"_s, .range = u"0 to 32767"_s},
        {.name = u"ListIndex"_s, .range = u"-1 to 32767"_s},
        {.name = u"ResetbackColor"_s, .unit = u"colour"_s},
    };
}

const HandedClass handed(QMetaType::fromType<ORVDataCombo *>(),
                         &together<comboMembers, textMembers<Combo>, comboEvents>,
                         &together<facts, keyFacts, dragFacts>);

} // namespace

const MemberTable &ORVDataCombo::Members() const
{
    return handed.table();
}

} // namespace ORVTListview
