#pragma once

#include "widgets/input/DragWatch.h"
#include <ORVTListview/DataObject.h>

#include <QtCore/QObject>
#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/Qt>

#include <functional>
#include <memory>

class QDrag;
class QDropEvent;
class QEvent;
class QMimeData;
class QWidget;

namespace ORVTListview {

class DragData;
struct MouseArguments;

// What a widget itself does with what is dragged over it, as far as the receivers
// of its events let it. Positions in the events are the surface's.
class DropTarget
{
public:
    DropTarget() = default;
    Q_DISABLE_COPY_MOVE(DropTarget) // known by address
    virtual ~DropTarget() = default;

    // The effect that the receivers are told of a drag move or a drop.
    virtual qint32 effectOf(const QDropEvent &event) = 0;

    // The effect that they have left it at, None included, is being shown.
    virtual void show(const QDropEvent &event, qint32 effect) = 0;

    // The drag has left, or was dropped.
    virtual void hide() = 0;

    // It was dropped with an effect other than None.
    virtual void drop(const QDropEvent &event, qint32 effect) = 0;
};

// Drag and drop for a widget, by the six published events. Effects are 0 none,
// 1 copy, 2 move, 4 link, and sums of them where several are allowed. X and Y are
// twips from the widget's corner. A receiver may destroy the widget in any of the
// events but OLESetData.
class DragEvents : public QObject
{
    Q_OBJECT

public:
    enum Effect : qint32 { None = 0, Copy = 1, Move = 2, Link = 4 };
    enum State : qint16 { Enter = 0, Leave = 1, Over = 2 };

    // surface is the child of widget, or widget itself, that gets the toolkit's
    // drag events; its owner hands them to handle(). Neither is owned.
    DragEvents(QWidget &widget, QWidget &surface);
    ~DragEvents() override;

    // What a drag carries before OLEStartDrag; nothing by default.
    void setContent(std::function<void(QMimeData &)> content);

    // The effects that OLEStartDrag comes with; Copy by default.
    void setAllowedEffects(qint32 effects) { m_allowed = effects; }

    // Not owned; null, as at first, for a widget that leaves all to the receivers.
    void setTarget(DropTarget *target) { m_target = target; }

    // Starts a drag once the event at hand is over, if a mouse button is still
    // down then. The drag needs some content and some effect allowed.
    void begin();

    // Calls off the drag that runs or waits; without one, nothing.
    void cancel();

    // For every event of the surface. True for those it has dealt with.
    bool handle(QEvent &event);

Q_SIGNALS:
    // Content is there and can be changed. No drag starts when it or all
    // AllowedEffects are taken away.
    void OLEStartDrag(ORVTListview::DataObject *Data, qint32 &AllowedEffects);

    // A target wants data that were promised.
    void OLESetData(ORVTListview::DataObject *Data, qint16 DataFormat);

    // The effect of letting go now has changed. DefaultCursors set to false shows
    // the widget's own cursor instead, if that is a picture.
    void OLEGiveFeedback(qint32 Effect, bool &DefaultCursors);

    void OLECompleteDrag(qint32 Effect);

    // Effect comes as the target's, without one as the user's keys ask for; the one it is left at
    // is shown and, on letting go, done. None refuses. A change is of no use in Leave.
    void OLEDragOver(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y, qint16 State);
    void OLEDragDrop(ORVTListview::DataObject *Data, qint32 &Effect, qint16 Button, qint16 Shift,
                     float X, float Y);

private:
    enum class Source { Idle, Waiting, Running };

    void start();
    void run(std::unique_ptr<DragData> data, qint32 allowed);
    void giveFeedback(Qt::DropAction action);
    qint32 effectOf(const QDropEvent &event) const;
    qint32 raiseOver(qint32 effect, const MouseArguments &mouse, State state);
    MouseArguments mouseOf(const QDropEvent &event);
    void over(QDropEvent &event);
    void leave();
    void drop(QDropEvent &event);

    QWidget &m_widget;
    QWidget &m_surface;
    std::function<void(QMimeData &)> m_content;
    Source m_source = Source::Idle;
    QPointer<QDrag> m_running;
    qint32 m_allowed = Copy;
    DropTarget *m_target = nullptr;

    bool m_isAnnounced = false; // a drag is over the surface, and its Enter was raised
    QPointer<QMimeData> m_overData;
    QPointF m_overPosition;
    DragWatch m_watch; // the last, as it tells this object when it goes
};

} // namespace ORVTListview
