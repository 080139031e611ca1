#include "workbench/views/RowDrags.h"

#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtGui/QMouseEvent>

namespace ORVTListview {

RowDrags::RowDrags(ORVListView &list)
    : QObject(&list)
    , m_list(list)
{
    list.listView()->viewport()->installEventFilter(this);
    list.listView()->setDragEnabled(true);
    list.setMultiSelect(true);
}

bool RowDrags::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        ReportList &rows = *m_list.listView();
        const QPoint place = static_cast<QMouseEvent *>(event)->position().toPoint();
        rows.setDragEnabled(!rows.grid()->selectsCells() || rows.indexAt(place).column() == 0);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ORVTListview
