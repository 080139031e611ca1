#pragma once

#include "widgets/grid/GridParts.h"
#include "widgets/list/ReportCells.h"
#include "widgets/list/ReportListParts.h"
#include "widgets/view/LabelEdit.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/ViewClicks.h"
#include "widgets/view/ViewSurface.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItems.h>

#include <memory>

namespace ORVTListview {

// What a ReportList is made of.
struct ReportListBody : ReportListParts
{
    explicit ReportListBody(QTableView &shownBy)
        : ReportListParts(shownBy)
        , listItems(*this)
        , columnHeaders(*this)
        , surface(shownBy, delegate)
        , clicks(shownBy)
        , labels(shownBy, delegate)
        , cells(*this)
    {
    }

    // Once the view has its model.
    void makeGrid()
    {
        grid.reset(new ListGrid(std::make_unique<GridParts>(view, cells, labels, delegate)));
    }
    GridParts &gridParts() const { return *grid->d; }

    ListItems listItems;
    ColumnHeaders columnHeaders;
    ReportDelegate delegate;
    ViewSurface surface;
    ViewClicks clicks;
    LabelEdit labels;
    ReportCells cells;
    std::unique_ptr<ListGrid> grid;

    bool copies = true;
    bool editsLabels = true;
    ListItem *checkedItem = nullptr;       // by the event at hand
    ColumnHeader *clickedColumn = nullptr; // likewise
};

} // namespace ORVTListview
