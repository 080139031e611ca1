#include "widgets/look/PictureButton.h"

#include "base/EventGuard.h"
#include <ORVTListview/ImageList.h>

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

#include <utility>

namespace ORVTListview {
namespace {

// Enter does what the toolkit's buttons do for Space.
QKeyEvent spaceForEnter(const QKeyEvent &event)
{
    const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return {event.type(), isEnter ? int{Qt::Key_Space} : event.key(), event.modifiers(),
            event.text(), event.isAutoRepeat()};
}

} // namespace

PictureButton::PictureButton(const ImageList &images, QWidget *parent)
    : QToolButton(parent)
    , m_images(images)
{
    setFocusPolicy(Qt::TabFocus); // a click leaves the focus where the user works
    connect(this, &QToolButton::clicked, this, &PictureButton::noteClick);
}

void PictureButton::setPictureKeys(const QString &key, const QString &pressedKey)
{
    m_key = key;
    m_pressedKey = pressedKey;
    update();
}

QSize PictureButton::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    return {side, side};
}

bool PictureButton::event(QEvent *event)
{
    const QPointer<PictureButton> self(this);
    const bool wasAtWork = std::exchange(m_isAtWork, true);
    const bool isHandled = EventGuard::run([&] { return QToolButton::event(event); });
    if (!self)
        return isHandled;
    m_isAtWork = wasAtWork;
    if (!m_isAtWork)
        raiseNoted();
    return isHandled;
}

// A screen reader's press is no event of the button.
void PictureButton::noteClick()
{
    m_isClicked = true;
    if (!m_isAtWork)
        raiseNoted();
}

void PictureButton::raiseNoted()
{
    if (std::exchange(m_isClicked, false))
        raiseEvent(*this, &PictureButton::pressedAndReleased);
}

void PictureButton::keyPressEvent(QKeyEvent *event)
{
    QKeyEvent key = spaceForEnter(*event);
    QToolButton::keyPressEvent(&key);
    event->setAccepted(key.isAccepted());
}

void PictureButton::keyReleaseEvent(QKeyEvent *event)
{
    QKeyEvent key = spaceForEnter(*event);
    QToolButton::keyReleaseEvent(&key);
    event->setAccepted(key.isAccepted());
}

void PictureButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_images.Picture(PictureKey())
        .paint(&painter, rect(), Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
    if (!hasFocus())
        return;
    painter.setPen(QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRect(rect().adjusted(0, 0, -1, -1)); // the styles' own is too faint
}

} // namespace ORVTListview
