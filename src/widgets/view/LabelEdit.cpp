#include "widgets/view/LabelEdit.h"

#include "widgets/view/ReportDelegate.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QApplication>

namespace ORVTListview {
namespace {

bool isKey(const QEvent &event)
{
    return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::KeyPress;
}

bool isPress(const QEvent &event)
{
    return event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
}

// Its context menu is its own, although in another window.
bool isPartOf(const QWidget &editor, const QObject *object)
{
    while (object && object != &editor)
        object = object->parent();
    return object;
}

// Events come to the window first. There the editor is told by its place, and nothing
// has happened yet: no focus has moved, nobody minds what a receiver destroys.
bool isBeside(const QWidget &editor, const QObject &receiver, const QEvent &event)
{
    const QWidget *popup = QApplication::activePopupWidget();
    if (popup && isPartOf(editor, popup))
        return false;
    if (!receiver.isWindowType())
        return !isPartOf(editor, &receiver);
    const QWidget *native = editor.nativeParentWidget(); // none on a graphics scene
    if (!native || &receiver != native->windowHandle())
        return false;
    const auto &pointer = static_cast<const QSinglePointEvent &>(event);
    return event.type() == QEvent::Wheel || // which scrolls the view
           !editor.rect().contains(editor.mapFromGlobal(pointer.globalPosition().toPoint()));
}

} // namespace

LabelEdit::LabelEdit(QAbstractItemView &view, ReportDelegate &delegate)
    : m_view(view)
    , m_delegate(delegate)
{
}

void LabelEdit::open(const QModelIndex &label)
{
    m_label = label;
    OpenView::edit(m_view, label);
    watchTheUser();
}

QWidget *LabelEdit::editor() const
{
    return m_label.isValid() ? m_view.indexWidget(m_label) : nullptr;
}

void LabelEdit::tellSoon(const std::function<void()> &tell)
{
    m_untold.enqueue(tell);
    watchTheUser();
    QMetaObject::invokeMethod(
        this, [this] { tellNow(); }, Qt::QueuedConnection);
}

// A receiver may destroy the view.
void LabelEdit::tellNow()
{
    const QPointer<LabelEdit> self(this);
    while (self && !m_untold.isEmpty()) {
        const std::function<void()> tell = m_untold.dequeue();
        tell();
    }
    if (self)
        watchTheUser();
}

void LabelEdit::watchTheUser()
{
    if (editor() || !m_untold.isEmpty())
        QCoreApplication::instance()->installEventFilter(this);
    else
        QCoreApplication::instance()->removeEventFilter(this);
}

void LabelEdit::closeFor(const QObject &receiver, const QEvent &event)
{
    QWidget *open = editor();
    if (!open || !isBeside(*open, receiver, event))
        return;
    const QPointer<LabelEdit> self(this);
    m_delegate.finish(*open);
    if (!self || !isPress(event))
        return;
    m_wasClosedByPress = true;
    QMetaObject::invokeMethod(
        this, [this] { m_wasClosedByPress = false; }, Qt::QueuedConnection);
}

// What is left of the event: nothing for what has gone meanwhile, nor beside a label
// that a receiver edits again. Where one has shown a message, that took the release.
bool LabelEdit::eventFilter(QObject *watched, QEvent *event)
{
    const bool presses = isPress(*event);
    const bool isMouse = presses || event->type() == QEvent::Wheel;
    if (!isMouse && !isKey(*event))
        return false;
    const QPointer<QObject> receiver(watched);
    const QPointer<LabelEdit> self(this);
    const Qt::MouseButtons held = QGuiApplication::mouseButtons();
    if (isMouse)
        closeFor(*watched, *event);
    if (self)
        tellNow();
    const bool editsAgain =
        self && receiver && isMouse && editor() && isBeside(*editor(), *watched, *event);
    if (!receiver || editsAgain) {
        event->accept();
        return true;
    }
    if (!presses)
        return false;
    const Qt::MouseButton button = static_cast<const QMouseEvent *>(event)->button();
    return held.testFlag(button) && !QGuiApplication::mouseButtons().testFlag(button);
}

} // namespace ORVTListview
