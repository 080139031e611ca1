#include "widgets/list/HeaderMouse.h"

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ORVTListview {
namespace {

QMouseEvent shifted(const QMouseEvent &event, int shift)
{
    return {event.type(),          event.position() - QPointF(shift, 0),
            event.scenePosition(), event.globalPosition(),
            event.button(),        event.buttons(),
            event.modifiers(),     event.pointingDevice()};
}

bool isLeft(const QMouseEvent &event, QEvent::Type type)
{
    return event.type() == type && event.button() == Qt::LeftButton;
}

bool isLeftDown(const QMouseEvent &event)
{
    return isLeft(event, QEvent::MouseButtonPress) || isLeft(event, QEvent::MouseButtonDblClick);
}

} // namespace

HeaderMouse::HeaderMouse(QHeaderView &header, const SeenSections &seen,
                         const SectionDrag::Picture &picture)
    : m_header(header)
    , m_seen(seen)
    , m_drag(header, seen, picture)
{
}

// What comes of it may destroy the header.
bool HeaderMouse::deliver(QMouseEvent &event, const ToToolkit &toToolkit)
{
    if (actOnDivider(event) || drag(event, toToolkit))
        return true;
    const int x = event.position().toPoint().x();
    const bool isHeldOn = event.type() == QEvent::MouseButtonRelease ||
                          (event.type() == QEvent::MouseMove && event.buttons() != Qt::NoButton);
    if (!isHeldOn)
        m_pressedShift = m_seen.shiftAt(x);
    if (isLeftDown(event) && !isOnDivider(x))
        m_drag.press(x);
    if (m_pressedShift == 0)
        return toToolkit(event);
    QMouseEvent elsewhere = shifted(event, m_pressedShift);
    const QPointer<QHeaderView> alive(&m_header);
    const bool isHandled = toToolkit(elsewhere);
    event.setAccepted(elsewhere.isAccepted());
    if (alive && event.type() != QEvent::MouseMove)
        refreshKept();
    return isHandled;
}

// The toolkit has the press, and gets the release where no section is: that is no click.
bool HeaderMouse::drag(QMouseEvent &event, const ToToolkit &toToolkit)
{
    const bool isHeld = event.buttons().testFlag(Qt::LeftButton);
    if (event.type() == QEvent::MouseMove && isHeld)
        return m_drag.follow(event.position().toPoint().x());
    if (event.type() == QEvent::MouseMove)
        m_drag.cancel(); // its release went elsewhere
    if (!isLeft(event, QEvent::MouseButtonRelease))
        return false;
    const QPointer<QHeaderView> alive(&m_header);
    if (!m_drag.drop())
        return false;
    const int beyond = alive ? m_header.length() + m_header.viewport()->width() : 0;
    QMouseEvent outside = shifted(event, alive && m_header.isRightToLeft() ? -beyond : beyond);
    if (alive)
        toToolkit(outside);
    return true;
}

// The toolkit draws a section anew where it has it.
void HeaderMouse::refreshKept() const
{
    m_header.viewport()->update(m_seen.keptArea());
}

bool HeaderMouse::isOnDivider(int x) const
{
    const int grip = m_header.style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, &m_header);
    const QRect place = m_seen.placeOf(m_seen.columnAt(x));
    return x < place.left() + grip || x > place.right() - grip;
}

int HeaderMouse::keptDividerAt(int x) const
{
    const int grip = m_header.style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, &m_header);
    for (const int column : m_seen.shiftAt(x) != 0 ? m_seen.kept() : QList<int>()) {
        const QRect place = m_seen.placeOf(column);
        const int divider = m_header.isRightToLeft() ? place.left() : place.right() + 1;
        if (std::abs(x - divider) <= grip &&
            m_header.sectionResizeMode(column) == QHeaderView::Interactive)
            return column;
    }
    return -1;
}

// Of a column that stays in sight: the toolkit passes over the mouse where it has them, beyond
// its edge.
bool HeaderMouse::actOnDivider(const QMouseEvent &event)
{
    const int x = event.position().toPoint().x();
    const int place = m_header.isRightToLeft() ? -x : x;
    const bool isOver = keptDividerAt(x) >= 0;
    if (isLeft(event, QEvent::MouseButtonPress) && isOver) {
        m_resized = keptDividerAt(x);
        m_beside = m_header.sectionSize(m_resized) - place;
    } else if (event.type() == QEvent::MouseMove && event.buttons() == Qt::NoButton) {
        m_resized = -1; // its release went elsewhere
        showPointer(x);
        return isOver;
    } else if (event.type() == QEvent::MouseMove && m_resized >= 0) {
        m_header.resizeSection(m_resized,
                               std::max(m_header.minimumSectionSize(), place + m_beside));
        return true; // whom that tells may have destroyed the header
    } else if (event.type() == QEvent::MouseButtonRelease && m_resized >= 0) {
        m_resized = -1;
        return true;
    }
    return m_resized >= 0;
}

void HeaderMouse::showPointer(int x)
{
    if (keptDividerAt(x) >= 0)
        m_header.setCursor(Qt::SplitHCursor);
    else if (m_seen.shiftAt(x) != 0)
        m_header.unsetCursor();
}

} // namespace ORVTListview
