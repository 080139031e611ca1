#pragma once

#include "members/InputEvents.h"

// The events of a list and of the control that shows one, whose numbers are the same.

namespace ORVTListview::MemberEntries {

template <typename List>
QList<Member> listEvents()
{
    const QList<Member> own{
        raises<&List::AfterLabelEdit>(1, u"AfterLabelEdit", u"Cancel", u"NewString"),
        raises<&List::BeforeLabelEdit>(2, u"BeforeLabelEdit", u"Cancel"),
        raises<&List::Click>(3, u"Click"),
        raises<&List::ColumnClick>(4, u"ColumnClick", u"ColumnHeader"),
        raises<&List::DblClick>(5, u"DblClick"),
        raises<&List::ItemCheck>(6, u"ItemCheck", u"Item"),
        raises<&List::ItemClick>(7, u"ItemClick", u"Item"),
    };
    return own + keyEvents<List>(8) + mouseEvents<List>(11) + dragEvents<List>(14);
}

} // namespace ORVTListview::MemberEntries
