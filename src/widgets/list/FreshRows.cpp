#include "widgets/list/FreshRows.h"

#include "widgets/view/ViewScroll.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTableView>

namespace ORVTListview {
namespace {

void showAllAlike(QTableView &view)
{
    const QHeaderView &rows = *view.verticalHeader();
    const int height = rows.defaultSectionSize();
    for (int row = 0; row < rows.count(); ++row) {
        view.showRow(row);
        if (view.rowHeight(row) != height)
            view.setRowHeight(row, height);
    }
}

} // namespace

void beginAfresh(QTableView &view)
{
    showAllAlike(view);
    view.horizontalScrollBar()->setValue(0);
    view.verticalScrollBar()->setValue(0);
    view.doItemsLayout(); // places are asked for before the event loop runs
    const QModelIndex first = view.model()->index(0, 0);
    if (view.hasFocus() && first.isValid()) // as when the focus comes
        ViewScroll(view).makeCurrent(first, QItemSelectionModel::NoUpdate);
}

} // namespace ORVTListview
