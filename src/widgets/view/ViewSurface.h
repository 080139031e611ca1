#pragma once

#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"
#include "widgets/view/ReportDelegate.h"

#include <QtWidgets/QAbstractItemView>

class QHelpEvent;

namespace ORVTListview {

// The viewport of a list or a tree: drags over it, which scroll the view near an
// edge, and tool tips for the cells that show less than their text.
class ViewSurface
{
public:
    ViewSurface(QAbstractItemView &view, const ReportDelegate &delegate);
    Q_DISABLE_COPY_MOVE(ViewSurface) // follows one view

    DragEvents &drag() { return m_drag; }

    // For every event of the viewport; the rest is for those that are the view's own.
    template <typename Rest>
    bool deliver(QEvent &event, const Rest &rest)
    {
        return m_surface.deliver([this, &event, &rest] { return handle(event) || rest(); });
    }

    // Invalid beside the viewport as well as beside the cells.
    QModelIndex indexAt(QPoint place) const;
    QModelIndex indexAt(float x, float y) const; // twips from the view's corner

    // For the view's destructor.
    void letGo() { m_surface.letGo(); }

private:
    bool handle(QEvent &event);
    void followDrag(const QEvent &event);
    void showToolTip(const QHelpEvent &event);

    QAbstractItemView &m_view;
    const ReportDelegate &m_delegate;
    EventSurface m_surface; // gets the end of a drag that is over it to the last
    DragEvents m_drag;
};

} // namespace ORVTListview
