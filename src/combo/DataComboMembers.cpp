#include <ORVTListview/ORVDataCombo.h>

#include "members/MemberEntries.h"

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
        method<&Combo::InitStrings>(u"InitStrings"),
        method<&Combo::ReInitializeStrings>(u"ReInitializeStrings"),
    };
}

QList<Member> comboEvents()
{
    return {
        raises<&Combo::Change>(1, u"Change"),
        raises<&Combo::Click>(2, u"Click"),
        raises<&Combo::DblClick>(3, u"DblClick"),
        raises<&Combo::KeyDown>(4, u"KeyDown", u"KeyCode", u"Shift"),
        raises<&Combo::KeyPress>(5, u"KeyPress", u"KeyAscii"),
        raises<&Combo::KeyUp>(6, u"KeyUp", u"KeyCode", u"Shift"),
        raises<&Combo::OLECompleteDrag>(7, u"OLECompleteDrag", u"Effect"),
        raises<&Combo::OLEDragDrop>(8, u"OLEDragDrop", u"Data", u"Effect", u"Button", u"Shift",
                                    u"X", u"Y"),
        raises<&Combo::OLEDragOver>(9, u"OLEDragOver", u"Data", u"Effect", u"Button", u"Shift",
                                    u"X", u"Y", u"State"),
        raises<&Combo::OLEGiveFeedback>(10, u"OLEGiveFeedback", u"Effect", u"DefaultCursors"),
        raises<&Combo::OLESetData>(11, u"OLESetData", u"Data", u"DataFormat"),
        raises<&Combo::OLEStartDrag>(12, u"OLEStartDrag", u"Data", u"AllowedEffects"),
    };
}

} // namespace

const MemberTable &ORVDataCombo::Members() const
{
    static const MemberTable table(QStringLiteral("ORVDataCombo"), comboMembers() + comboEvents());
    return table;
}

} // namespace ORVTListview
