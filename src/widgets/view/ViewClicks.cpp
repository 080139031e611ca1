#include "widgets/view/ViewClicks.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QAbstractItemView>

#include <utility>

namespace ORVTListview {

ViewClicks::ViewClicks(const QAbstractItemView &view)
    : m_view(view)
{
}

void ViewClicks::focusIn(const QFocusEvent &event)
{
    m_isFocusing = event.reason() == Qt::MouseFocusReason;
}

bool ViewClicks::takeFocusing()
{
    return std::exchange(m_isFocusing, false);
}

void ViewClicks::press(const QMouseEvent &event, const QModelIndex &index, bool isChosenLabel)
{
    const bool isLeft = event.button() == Qt::LeftButton;
    m_isAwaited = isLeft;
    m_pressed = index;
    m_slow.press(isLeft && event.modifiers() == Qt::NoModifier && isChosenLabel);
}

bool ViewClicks::release(const QMouseEvent &event, bool hasChecked)
{
    const QPoint place = event.position().toPoint();
    const bool isClick = event.button() == Qt::LeftButton && std::exchange(m_isAwaited, false) &&
                         m_view.viewport()->rect().contains(place);
    m_slow.release(isClick && !hasChecked && m_view.indexAt(place) == m_pressed);
    return isClick;
}

void ViewClicks::doubleClick()
{
    m_slow.stop();
    m_isAwaited = false;
}

} // namespace ORVTListview
