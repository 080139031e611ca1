// What the user does to a combo. Between a signal and what comes after it stands a
// look whether the combo still exists.

#include "base/EventGuard.h"
#include "widgets/combo/ImageCombo.h"
#include "widgets/combo/ImageComboParts.h"
#include "widgets/input/RaisedKeys.h"

#include <QtCore/QPointer>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

#include <utility>

namespace ORVTListview {
namespace {

bool isTab(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

bool ImageCombo::event(QEvent *event)
{
    if (!d)
        return QComboBox::event(event);
    return EventGuard::run([this, event] {
        const QPointer<ImageCombo> self(this);
        if (d->drag.handle(*event))
            return true;
        bool handled = true;
        const auto work = [&] {
            handled = EventGuard::run([&] { return QComboBox::event(event); });
        };
        if (isTab(*event)) { // moves the focus before it is seen as a key
            chooseMarked();
            letWork(work);
        } else {
            work();
        }
        if (self && !d->isAtWork)
            raiseNotedAfter(*event);
        return handled;
    });
}

// Whoever moves the focus cannot bear to lose the window meanwhile.
void ImageCombo::raiseNotedAfter(const QEvent &event)
{
    if (event.type() == QEvent::FocusOut)
        QMetaObject::invokeMethod(this, &ImageCombo::raiseNoted, Qt::QueuedConnection);
    else
        raiseNoted();
}

// The toolkit sends the combo further events while it works on the field; it
// cannot bear to lose the field then.
void ImageCombo::letWork(const std::function<void()> &work)
{
    const QPointer<ImageCombo> self(this);
    const bool wasAtWork = std::exchange(d->isAtWork, true);
    work();
    if (self)
        d->isAtWork = wasAtWork;
}

// The field.

bool ImageCombo::eventFilter(QObject *watched, QEvent *event)
{
    if (!d || watched != lineEdit() || event->type() != QEvent::MouseButtonDblClick ||
        static_cast<QMouseEvent *>(event)->button() != Qt::LeftButton)
        return QComboBox::eventFilter(watched, event);
    return d->field.deliver([this] { return !raiseEvent(*this, &ImageCombo::DblClick); });
}

void ImageCombo::noteEdit(const QString &text)
{
    endSelection();
    if (isVisible() && (isListOpen() || !text.isEmpty()))
        d->list->open(text);
    if (d->isAtWork)
        d->hasChanged = true;
    else
        raiseChangeSoon();
}

void ImageCombo::raiseNoted()
{
    if (std::exchange(d->hasChanged, false) && !raiseEvent(*this, &ImageCombo::Change))
        return;
    if (std::exchange(d->isClicked, false) && !raiseEvent(*this, &ImageCombo::Click))
        return;
    if (std::exchange(d->isPicked, false) && currentIndex() >= 0)
        raiseEvent(*this, &ImageCombo::picked);
}

// For what comes by the field's menu or the mouse.
void ImageCombo::raiseChangeSoon()
{
    QMetaObject::invokeMethod(
        this, [this] { raiseEvent(*this, &ImageCombo::Change); }, Qt::QueuedConnection);
}

// What is chosen.

void ImageCombo::choose(int row)
{
    hidePopup();
    select(row);
    remember();
    d->isClicked = true;
}

// Told of when the events before it have been.
void ImageCombo::pick()
{
    d->isPicked = currentIndex() >= 0;
}

void ImageCombo::chooseMarked()
{
    const int row = isListOpen() ? d->list->currentRow() : -1;
    hidePopup();
    if (row >= 0)
        choose(row);
}

void ImageCombo::chooseTypedName()
{
    const bool isUntouched = d->settledRow < 0 && text() == d->settledText;
    if (currentIndex() >= 0 || isUntouched)
        return;
    const int row = d->entries->rowOfText(text());
    if (row >= 0)
        choose(row);
}

void ImageCombo::bringBack()
{
    hidePopup();
    d->hasChanged = text() != d->settledText;
    select(d->settledRow);
    lineEdit()->setText(d->settledText);
    lineEdit()->selectAll();
}

// Keys.

void ImageCombo::keyPressEvent(QKeyEvent *event)
{
    raiseKeyPress(*this, *event, [this](QKeyEvent &key) { act(key); });
}

void ImageCombo::keyReleaseEvent(QKeyEvent *event)
{
    if (raiseKeyUp(*this, *event))
        QComboBox::keyReleaseEvent(event);
}

void ImageCombo::act(QKeyEvent &event)
{
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isListOpen() && actOnList(event))
        return;
    if (isEnter) {
        chooseTypedName();
        pick();
    }
    letWork([this, &event] { QComboBox::keyPressEvent(&event); });
}

bool ImageCombo::actOnList(const QKeyEvent &event)
{
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        chooseMarked();
        pick();
        break;
    case Qt::Key_Escape:
        bringBack();
        break;
    case Qt::Key_F4:
        hidePopup();
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (alt)
            hidePopup();
        else
            d->list->moveBy(event.key() == Qt::Key_Up ? -1 : 1);
        break;
    case Qt::Key_PageUp:
        d->list->moveBy(-d->list->pageSize());
        break;
    case Qt::Key_PageDown:
        d->list->moveBy(d->list->pageSize());
        break;
    default:
        return false;
    }
    return true;
}

void ImageCombo::inputMethodEvent(QInputMethodEvent *event)
{
    letWork([this, event] { QComboBox::inputMethodEvent(event); });
}

// Mouse and focus.

void ImageCombo::mousePressEvent(QMouseEvent *event)
{
    const QPoint position = event->position().toPoint();
    const bool isLeft = event->button() == Qt::LeftButton;
    d->isPicturePressed = false;
    if (isLeft && isArrowAt(position)) {
        showPopup();
        return;
    }
    // The field covers all but the arrow, the frame and the picture.
    d->isPicturePressed = isLeft && d->dragsEntry && currentIndex() >= 0;
    d->pressed = position;
}

void ImageCombo::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint way = event->position().toPoint() - d->pressed;
    if (d->isPicturePressed && way.manhattanLength() >= QApplication::startDragDistance()) {
        d->isPicturePressed = false;
        d->drag.begin();
    }
}

void ImageCombo::mouseReleaseEvent(QMouseEvent *event)
{
    d->isPicturePressed = false;
    QComboBox::mouseReleaseEvent(event);
}

void ImageCombo::wheelEvent(QWheelEvent *event)
{
    event->ignore(); // for what scrolls the form
}

void ImageCombo::focusOutEvent(QFocusEvent *event)
{
    if (event->reason() == Qt::PopupFocusReason) {
        if (!isListOpen())
            QComboBox::focusOutEvent(event);
        return;
    }
    QComboBox::focusOutEvent(event);
    chooseTypedName();
    raiseEvent(*this, &ImageCombo::focusLeft);
}

} // namespace ORVTListview
