#pragma once

#include "members/MemberEntries.h"

// The entries of the events that components have alike, numbered from `first` on.

namespace ORVTListview::MemberEntries {

template <typename Component>
QList<Member> clickEvents(qint32 first)
{
    return {
        raises<&Component::Click>(first, u"Click"),
        raises<&Component::DblClick>(first + 1, u"DblClick"),
    };
}

template <typename Component>
QList<Member> keyEvents(qint32 first)
{
    return {
        raises<&Component::KeyDown>(first, u"KeyDown", u"KeyCode", u"Shift"),
        raises<&Component::KeyPress>(first + 1, u"KeyPress", u"KeyAscii"),
        raises<&Component::KeyUp>(first + 2, u"KeyUp", u"KeyCode", u"Shift"),
    };
}

template <typename Component>
QList<Member> mouseEvents(qint32 first)
{
    return {
        raises<&Component::MouseDown>(first, u"MouseDown", u"Button", u"Shift", u"X", u"Y"),
        raises<&Component::MouseMove>(first + 1, u"MouseMove", u"Button", u"Shift", u"X", u"Y"),
        raises<&Component::MouseUp>(first + 2, u"MouseUp", u"Button", u"Shift", u"X", u"Y"),
    };
}

template <typename Component>
QList<Member> dragEvents(qint32 first)
{
    return {
        raises<&Component::OLECompleteDrag>(first, u"OLECompleteDrag", u"Effect"),
        raises<&Component::OLEDragDrop>(first + 1, u"OLEDragDrop", u"Data", u"Effect", u"Button",
                                        u"Shift", u"X", u"Y"),
        raises<&Component::OLEDragOver>(first + 2, u"OLEDragOver", u"Data", u"Effect", u"Button",
                                        u"Shift", u"X", u"Y", u"State"),
        raises<&Component::OLEGiveFeedback>(first + 3, u"OLEGiveFeedback", u"Effect",
                                            u"DefaultCursors"),
        raises<&Component::OLESetData>(first + 4, u"OLESetData", u"Data", u"DataFormat"),
        raises<&Component::OLEStartDrag>(first + 5, u"OLEStartDrag", u"Data", u"AllowedEffects"),
    };
}

} // namespace ORVTListview::MemberEntries
