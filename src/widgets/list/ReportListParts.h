#pragma once

#include "widgets/list/ColumnWidths.h"
#include "widgets/list/KeptColumns.h"
#include "widgets/list/ReportModel.h"
#include "widgets/list/RowChoice.h"
#include "widgets/view/HandleStore.h"

#include <QtCore/QList>
#include <QtWidgets/QTableView>

#include <functional>

namespace ORVTListview {

class ColumnHeader;
class ListItem;

// What the rows and columns of a list, as hosts have them, stand on. Rows tell
// their handles when they go, so the handles outlive the model.
struct ReportListParts
{
    explicit ReportListParts(QTableView &shownBy)
        : view(shownBy)
        , rowChoice(shownBy, model)
        , widths(shownBy, model)
        , kept(shownBy)
    {
    }
    Q_DISABLE_COPY_MOVE(ReportListParts) // the parts know one another

    // None of these scrolls the view to another current cell.
    void removeRow(int position);
    void removeShown(int place, int count);

    // See CellTable.
    void doAtEnd(const QList<int> &places, const std::function<void()> &act);
    void clearRows();
    void removeColumn(int position);
    void clearColumns();

    // See ReportModel::show. What the host has hidden stays so, and a cell is current.
    void show(const ReportModel::Order &positions);

    // Of a row, by the host.
    bool isHidden(const ReportRow &row) const;
    void setHidden(ReportRow &row, bool hidden);

    QTableView &view;
    HandleStore<ListItem, ReportRow> items;
    HandleStore<ColumnHeader, ReportColumn> headers;
    ReportModel model;
    RowChoice rowChoice;
    ColumnWidths widths;
    KeptColumns kept;
    std::function<void()> unseenFollower; // told when a row that the view does not have goes
};

} // namespace ORVTListview
