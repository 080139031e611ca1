#include "widgets/input/DragEvents.h"

#include "base/EventGuard.h"
#include "widgets/input/DragData.h"
#include "widgets/input/DraggedNames.h"
#include "widgets/input/MouseArguments.h"
#include <ORVTListview/DataObject.h>

#include <QtGui/QDrag>
#include <QtGui/QDropEvent>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

#include <memory>
#include <utility>

namespace ORVTListview {
namespace {

static_assert(int{DragEvents::Copy} == int{Qt::CopyAction} &&
              int{DragEvents::Move} == int{Qt::MoveAction} &&
              int{DragEvents::Link} == int{Qt::LinkAction});
constexpr qint32 allEffects = DragEvents::Copy | DragEvents::Move | DragEvents::Link;

qint32 toEffect(Qt::DropAction action)
{
    return static_cast<qint32>(action) & allEffects;
}

Qt::DropActions toActions(qint32 effects)
{
    return Qt::DropActions(effects & allEffects);
}

// One action for what may be a sum of effects.
Qt::DropAction toAction(qint32 effect, Qt::DropActions possible)
{
    for (const Qt::DropAction action : {Qt::CopyAction, Qt::MoveAction, Qt::LinkAction}) {
        if (toActions(effect).testFlag(action) && possible.testFlag(action))
            return action;
    }
    return Qt::IgnoreAction;
}

void answer(QDropEvent &event, qint32 effect)
{
    const Qt::DropAction action = toAction(effect, event.possibleActions());
    event.setDropAction(action);
    event.setAccepted(action != Qt::IgnoreAction);
}

} // namespace

DragEvents::DragEvents(QWidget &widget, QWidget &surface)
    : m_widget(widget)
    , m_surface(surface)
    , m_watch(surface)
{
}

DragEvents::~DragEvents()
{
    m_isAnnounced = false; // nobody is told of the leave
    cancel();
}

void DragEvents::setContent(std::function<void(QMimeData &)> content)
{
    m_content = std::move(content);
}

void DragEvents::begin()
{
    if (m_source != Source::Idle)
        return;
    m_source = Source::Waiting;
    const auto startGuarded = [this] {
        EventGuard::run([this] {
            start();
            return true;
        });
    };
    QMetaObject::invokeMethod(this, startGuarded, Qt::QueuedConnection);
}

void DragEvents::cancel()
{
    if (m_source == Source::Running) {
        QDrag::cancel();
        // In the first feedback there is no loop yet that the toolkit could end.
        QMetaObject::invokeMethod(m_running.data(), &QDrag::cancel, Qt::QueuedConnection);
    }
    m_source = Source::Idle;
}

void DragEvents::start()
{
    if (m_source != Source::Waiting)
        return;
    m_source = Source::Idle;
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        return;
    auto data = std::make_unique<DragData>();
    if (m_content)
        m_content(*data);
    DataObject object(data.get(), DataObject::Side::Source);
    qint32 allowed = m_allowed;
    const QString text = data->text();
    const bool isThere = raiseEvent(*this, &DragEvents::OLEStartDrag, &object, allowed);
    if (data->text() != text) // the host's goes for the names, too
        data->removeFormat(DraggedNames::format());
    if (isThere && m_widget.isEnabled() && toActions(allowed) && !data->formats().isEmpty())
        run(std::move(data), allowed);
}

void DragEvents::run(std::unique_ptr<DragData> data, qint32 allowed)
{
    const QPointer<DragEvents> self(this);
    data->setMaker([self, made = data.get()](const QString &mimeType) {
        DataObject object(made, DataObject::Side::Source);
        if (self)
            raiseEvent(*self, &DragEvents::OLESetData, &object, DataObject::FormatNumber(mimeType));
    });
    auto *drag = new QDrag(&m_widget);
    drag->setParent(nullptr); // outlives the widget; the toolkit deletes it
    drag->setMimeData(data.release());
    connect(drag, &QDrag::actionChanged, this, &DragEvents::giveFeedback);
    m_source = Source::Running;
    m_running = drag;
    const Qt::DropAction done =
        drag->exec(toActions(allowed), toAction(allowed, toActions(allowed)));
    if (!self)
        return;
    m_source = Source::Idle;
    raiseEvent(*this, &DragEvents::OLECompleteDrag, toEffect(done));
}

void DragEvents::giveFeedback(Qt::DropAction action)
{
    const QPointer<QDrag> drag = qobject_cast<QDrag *>(sender());
    bool defaultCursors = true;
    const bool isThere =
        raiseEvent(*this, &DragEvents::OLEGiveFeedback, toEffect(action), defaultCursors);
    if (isThere && drag)
        drag->setDragCursor(defaultCursors ? QPixmap() : m_widget.cursor().pixmap(), action);
}

bool DragEvents::handle(QEvent &event)
{
    switch (event.type()) {
    case QEvent::DragEnter:
        // A move with the same place always follows. Only then is a receiver
        // asked: the toolkit cannot bear a widget that goes while it is entered.
        m_isAnnounced = false;
        event.accept();
        return true;
    case QEvent::DragMove:
        over(static_cast<QDropEvent &>(event));
        return true;
    case QEvent::DragLeave:
        leave();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent &>(event));
        return true;
    default:
        return false;
    }
}

// Raises OLEDragOver and returns the effect that is left.
qint32 DragEvents::raiseOver(qint32 effect, const MouseArguments &mouse, State state)
{
    DataObject data(m_overData, DataObject::Side::Target);
    raiseEvent(*this, &DragEvents::OLEDragOver, &data, effect, mouse.Button, mouse.Shift, mouse.X,
               mouse.Y, state);
    return effect;
}

qint32 DragEvents::effectOf(const QDropEvent &event) const
{
    return m_target ? m_target->effectOf(event) : toEffect(event.proposedAction());
}

MouseArguments DragEvents::mouseOf(const QDropEvent &event)
{
    m_overPosition = m_surface.mapTo(&m_widget, event.position());
    return mouseArguments(m_overPosition, event.buttons(), event.modifiers(), m_widget);
}

void DragEvents::over(QDropEvent &event)
{
    m_overData = const_cast<QMimeData *>(event.mimeData());
    const MouseArguments mouse = mouseOf(event);
    const State state = std::exchange(m_isAnnounced, true) ? Over : Enter;
    const QPointer<DragEvents> self(this);
    const qint32 effect = raiseOver(effectOf(event), mouse, state);
    answer(event, self ? effect : None); // the event lives on even if this object does not
    if (self && m_target)
        m_target->show(event, effect);
}

void DragEvents::leave()
{
    if (!std::exchange(m_isAnnounced, false))
        return;
    if (m_target)
        m_target->hide();
    raiseOver(None,
              mouseArguments(m_overPosition, QGuiApplication::mouseButtons(),
                             QGuiApplication::keyboardModifiers(), m_widget),
              Leave);
}

void DragEvents::drop(QDropEvent &event)
{
    m_isAnnounced = false;
    if (m_target)
        m_target->hide();
    DataObject data(const_cast<QMimeData *>(event.mimeData()), DataObject::Side::Target);
    const MouseArguments mouse = mouseOf(event);
    qint32 effect = effectOf(event);
    const Raised raised = raise(*this, &DragEvents::OLEDragDrop, &data, effect, mouse.Button,
                                mouse.Shift, mouse.X, mouse.Y);
    if (raised.hasFailed) // nobody knows what was taken, so nothing is to be moved away
        effect = None;
    answer(event, effect);
    if (raised.isThere && m_target && effect != None)
        m_target->drop(event, effect);
}

} // namespace ORVTListview
