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

// What is true of those that a component has.
inline QList<MemberFacts> keyFacts()
{
    const QString shift = QStringLiteral("Shift: sum of 1 Shift, 2 Ctrl, 4 Alt");
    return {
        {.name = QStringLiteral("KeyDown"), .range = shift},
        {.name = QStringLiteral("KeyPress"), .unit = QStringLiteral("UTF-16 code")},
        {.name = QStringLiteral("KeyUp"), .range = shift},
    };
}

inline QList<MemberFacts> mouseFacts()
{
    const QString places = QStringLiteral("X, Y: twip");
    const QString buttons = QStringLiteral("Button: 1 left, 2 right, 4 middle");
    return {
        {.name = QStringLiteral("MouseDown"), .unit = places, .range = buttons},
        {.name = QStringLiteral("MouseMove"), .unit = places, .range = buttons},
        {.name = QStringLiteral("MouseUp"), .unit = places, .range = buttons},
    };
}

inline QList<MemberFacts> dragFacts()
{
    const QString places = QStringLiteral("X, Y: twip");
    const QString effects = QStringLiteral("effects: sum of 1 copy, 2 move, 4 link; 0 none");
    return {
        {.name = QStringLiteral("OLECompleteDrag"), .range = effects},
        {.name = QStringLiteral("OLEDragDrop"), .unit = places, .range = effects},
        {.name = QStringLiteral("OLEDragOver"),
         .unit = places,
         .range = effects + QStringLiteral("; State: 0 enter, 1 leave, 2 over")},
        {.name = QStringLiteral("OLEGiveFeedback"), .range = effects},
        {.name = QStringLiteral("OLEStartDrag"), .range = effects},
    };
}

inline QList<MemberFacts> inputFacts()
{
    return keyFacts() + mouseFacts() + dragFacts();
}

} // namespace ORVTListview::MemberEntries
