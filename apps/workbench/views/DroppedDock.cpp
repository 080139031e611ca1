#include "workbench/views/DroppedDock.h"

#include "workbench/views/ViewDock.h"

#include <QtWidgets/QMainWindow>

#include <algorithm>

namespace ORVTListview {
namespace {

// Whether one of them has got less than half of what it would have.
bool isOneCrowded(const QList<QDockWidget *> &docks, int part, Qt::Orientation orientation)
{
    return std::ranges::any_of(docks, [part, orientation](const QDockWidget *dock) {
        return (orientation == Qt::Horizontal ? dock->width() : dock->height()) < part / 2;
    });
}

void share(const QList<QDockWidget *> &docks, int room, Qt::Orientation orientation,
           QMainWindow &place)
{
    if (docks.size() < 2)
        return;
    const int part = room / static_cast<int>(docks.size());
    if (!isOneCrowded(docks, part, orientation))
        return; // as the user has it
    place.resizeDocks(docks, QList<int>(docks.size(), part), orientation);
}

} // namespace

void shareRoom(const ViewDock &dropped, const QList<ViewDock *> &shown, QMainWindow &place)
{
    if (!dropped.isSeen() || dropped.isFloating())
        return;
    const QRect at = dropped.geometry();
    QList<QDockWidget *> row;
    QList<QDockWidget *> column;
    for (ViewDock *dock : shown) {
        if (!dock->isSeen() || dock->isFloating())
            continue;
        const QRect other = dock->geometry();
        if (other.top() <= at.bottom() && at.top() <= other.bottom())
            row.append(dock);
        if (other.left() <= at.right() && at.left() <= other.right())
            column.append(dock);
    }
    share(row, place.width(), Qt::Horizontal, place);
    share(column, place.height(), Qt::Vertical, place);
}

} // namespace ORVTListview
