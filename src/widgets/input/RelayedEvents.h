#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

// The events of an inner object that a widget raises as its own.

template <typename Inner, typename Outer>
void relayClicks(const Inner *inner, Outer *outer)
{
    QObject::connect(inner, &Inner::Click, outer, &Outer::Click);
    QObject::connect(inner, &Inner::DblClick, outer, &Outer::DblClick);
}

template <typename Inner, typename Outer>
void relayKeys(const Inner *inner, Outer *outer)
{
    QObject::connect(inner, &Inner::KeyDown, outer, &Outer::KeyDown);
    QObject::connect(inner, &Inner::KeyPress, outer, &Outer::KeyPress);
    QObject::connect(inner, &Inner::KeyUp, outer, &Outer::KeyUp);
}

template <typename Inner, typename Outer>
void relayMouse(const Inner *inner, Outer *outer)
{
    QObject::connect(inner, &Inner::MouseDown, outer, &Outer::MouseDown);
    QObject::connect(inner, &Inner::MouseMove, outer, &Outer::MouseMove);
    QObject::connect(inner, &Inner::MouseUp, outer, &Outer::MouseUp);
}

template <typename Inner, typename Outer>
void relayDrags(const Inner *inner, Outer *outer)
{
    QObject::connect(inner, &Inner::OLECompleteDrag, outer, &Outer::OLECompleteDrag);
    QObject::connect(inner, &Inner::OLEDragDrop, outer, &Outer::OLEDragDrop);
    QObject::connect(inner, &Inner::OLEDragOver, outer, &Outer::OLEDragOver);
    QObject::connect(inner, &Inner::OLEGiveFeedback, outer, &Outer::OLEGiveFeedback);
    QObject::connect(inner, &Inner::OLESetData, outer, &Outer::OLESetData);
    QObject::connect(inner, &Inner::OLEStartDrag, outer, &Outer::OLEStartDrag);
}

} // namespace ORVTListview
