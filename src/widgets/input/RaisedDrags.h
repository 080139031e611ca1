#pragma once

#include "widgets/input/DragEvents.h"

namespace ORVTListview {

// Lets a widget raise the events of its drags as its own.
template <typename Widget>
void raiseDrags(const DragEvents &drag, Widget &widget)
{
    QObject::connect(&drag, &DragEvents::OLECompleteDrag, &widget, &Widget::OLECompleteDrag);
    QObject::connect(&drag, &DragEvents::OLEDragDrop, &widget, &Widget::OLEDragDrop);
    QObject::connect(&drag, &DragEvents::OLEDragOver, &widget, &Widget::OLEDragOver);
    QObject::connect(&drag, &DragEvents::OLEGiveFeedback, &widget, &Widget::OLEGiveFeedback);
    QObject::connect(&drag, &DragEvents::OLESetData, &widget, &Widget::OLESetData);
    QObject::connect(&drag, &DragEvents::OLEStartDrag, &widget, &Widget::OLEStartDrag);
}

} // namespace ORVTListview
