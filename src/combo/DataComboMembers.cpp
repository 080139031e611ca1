#include <ORVTListview/ORVDataCombo.h>

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
    };
}

QList<Member> comboEvents()
{
    return QList{raises<&Combo::Change>(1, u"Change")} + clickEvents<Combo>(2) +
           keyEvents<Combo>(4) + dragEvents<Combo>(7);
}

} // namespace

const MemberTable &ORVDataCombo::Members() const
{
    static const MemberTable table(QStringLiteral("ORVDataCombo"),
                                   comboMembers() + textMembers<Combo>() + comboEvents());
    return table;
}

} // namespace ORVTListview
