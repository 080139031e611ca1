#pragma once

#include <ORVTListview/Component.h>
#include <ORVTListview/DataObject.h>
#include <ORVTListview/Export.h>

namespace ORVTListview {

// A component that takes keys, drags and drops, with the events that all of these raise
// alike. A receiver may do anything in them, destroying the component included; what it
// makes of an argument taken by reference goes back.
class ORVT_EXPORT InputComponent : public Component
{
    Q_OBJECT

public:
    explicit InputComponent(QWidget *parent = nullptr);
    ~InputComponent() override;

Q_SIGNALS:
    // The numbers of these events differ from component to component; each has its own.

    // A key was pressed. KeyCode is a virtual-key number; set to 0 it swallows the key. Shift holds
    // 1 for Shift, 2 for Ctrl, 4 for Alt.
    void KeyDown(qint16 &KeyCode, qint16 &Shift);

    // A character was typed. KeyAscii is its UTF-16 code; set to 0 it swallows the key, another
    // value is typed in its place.
    void KeyPress(qint16 &KeyAscii);

    // A key was let go; its arguments are as those of KeyDown.
    void KeyUp(qint16 &KeyCode, qint16 &Shift);

    // Drag and drop. Effects are 0 none, 1 copy, 2 move, 4 link; X and Y are twips from
    // the component's corner, unless the component says from where; State is 0 enter,
    // 1 leave, 2 over. Data is good only during the event.

    // A drag from here is over, with this effect.
    void OLECompleteDrag(qint32 Effect);

    // Something was dropped here. What Effect becomes is told to where it comes from.
    void OLEDragDrop(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y);

    // Something is dragged over here. An Effect of 0 refuses it.
    void OLEDragOver(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y, qint16 State);

    // What would become of a drag from here. DefaultCursors set to false leaves the cursor
    // to the host.
    void OLEGiveFeedback(qint32 Effect, bool &DefaultCursors);

    // A target wants a format that was promised: to be set now.
    void OLESetData(ORVTListview::DataObject *Data, qint16 DataFormat);

    // A drag begins here. Data may be filled, AllowedEffects changed; 0 calls it off.
    void OLEStartDrag(ORVTListview::DataObject *Data, qint32 &AllowedEffects);
};

} // namespace ORVTListview
