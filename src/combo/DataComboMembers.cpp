#include <ORVTListview/ORVDataCombo.h>

#include "members/DeclaredEntries.h"
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
        invokable<Combo, "SetListIndex">(),
        invokable<Combo, "ItemData">(),
        property<Combo, "ListCount">(),
        property<Combo, "ListIndex">(),
        property<Combo, "Text">(),
        property<Combo, "Enabled">(),
        invokable<Combo, "Clear">(),
        invokable<Combo, "ResetbackColor">(),
        invokable<Combo, "UpdateListWidth">(),
        writeOnly<&Combo::setFormParentHandle>(u"FormParentHandle"),
        property<Combo, "dragsEntry">(),
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
