#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

// The events of an inner object that its component raises as its own.

template <typename Inner, typename Component>
void relayKeys(const Inner *inner, Component *component)
{
    QObject::connect(inner, &Inner::KeyDown, component, &Component::KeyDown);
    QObject::connect(inner, &Inner::KeyPress, component, &Component::KeyPress);
    QObject::connect(inner, &Inner::KeyUp, component, &Component::KeyUp);
}

template <typename Inner, typename Component>
void relayMouse(const Inner *inner, Component *component)
{
    QObject::connect(inner, &Inner::MouseDown, component, &Component::MouseDown);
    QObject::connect(inner, &Inner::MouseMove, component, &Component::MouseMove);
    QObject::connect(inner, &Inner::MouseUp, component, &Component::MouseUp);
}

template <typename Inner, typename Component>
void relayDrags(const Inner *inner, Component *component)
{
    QObject::connect(inner, &Inner::OLECompleteDrag, component, &Component::OLECompleteDrag);
    QObject::connect(inner, &Inner::OLEDragDrop, component, &Component::OLEDragDrop);
    QObject::connect(inner, &Inner::OLEDragOver, component, &Component::OLEDragOver);
    QObject::connect(inner, &Inner::OLEGiveFeedback, component, &Component::OLEGiveFeedback);
    QObject::connect(inner, &Inner::OLESetData, component, &Component::OLESetData);
    QObject::connect(inner, &Inner::OLEStartDrag, component, &Component::OLEStartDrag);
}

} // namespace ORVTListview
