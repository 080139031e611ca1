#include "widgets/view/ViewSurface.h"

#include "widgets/look/PlainToolTip.h"
#include "widgets/look/Twips.h"
#include "widgets/view/OpenView.h"

#include <QtCore/QPointer>
#include <QtGui/QDropEvent>
#include <QtGui/QHelpEvent>

namespace ORVTListview {

ViewSurface::ViewSurface(QAbstractItemView &view, const ReportDelegate &delegate)
    : m_view(view)
    , m_delegate(delegate)
    , m_surface(*view.viewport())
    , m_drag(view, *view.viewport())
{
}

bool ViewSurface::handle(QEvent &event)
{
    const QPointer<QAbstractItemView> alive(&m_view);
    if (m_drag.handle(event)) {
        if (alive)
            followDrag(event);
        return true;
    }
    if (event.type() != QEvent::ToolTip)
        return false;
    showToolTip(static_cast<const QHelpEvent &>(event));
    return true;
}

// Scrolls while a drag stays near an edge.
void ViewSurface::followDrag(const QEvent &event)
{
    if (event.type() == QEvent::DragLeave || event.type() == QEvent::Drop) {
        OpenView::stopScrolling(m_view);
    } else if (event.type() == QEvent::DragMove && m_view.hasAutoScroll()) {
        const QPoint position = static_cast<const QDropEvent &>(event).position().toPoint();
        const int margin = m_view.autoScrollMargin();
        const QRect inner = m_view.viewport()->rect().adjusted(margin, margin, -margin, -margin);
        if (!inner.contains(position))
            OpenView::startScrolling(m_view);
    }
}

void ViewSurface::showToolTip(const QHelpEvent &event)
{
    const QModelIndex index = m_view.indexAt(event.pos());
    QStringList lines;
    if (index.isValid() && m_delegate.isElided(OpenView::cellOption(m_view, index), index))
        lines.append(index.data().toString());
    const QString told = index.data(Qt::ToolTipRole).toString();
    if (!told.isEmpty())
        lines.append(told);
    showPlainToolTip(event, lines.join(u'\n'), *m_view.viewport());
}

QModelIndex ViewSurface::indexAt(QPoint place) const
{
    return m_view.viewport()->rect().contains(place) ? m_view.indexAt(place) : QModelIndex();
}

QModelIndex ViewSurface::indexAt(float x, float y) const
{
    const QPoint place(Twips::toPixelsX(static_cast<double>(x), m_view),
                       Twips::toPixelsY(static_cast<double>(y), m_view));
    return indexAt(m_view.viewport()->mapFrom(&m_view, place));
}

} // namespace ORVTListview
