#pragma once

#include "widgets/list/ReportListParts.h"
#include "widgets/view/LabelEdit.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/ViewClicks.h"
#include "widgets/view/ViewSurface.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItems.h>

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
    {
    }

    ListItems listItems;
    ColumnHeaders columnHeaders;
    ReportDelegate delegate;
    ViewSurface surface;
    ViewClicks clicks;
    LabelEdit labels;

    bool copies = true;
    bool editsLabels = true;
    ListItem *checkedItem = nullptr;       // by the event at hand
    ColumnHeader *clickedColumn = nullptr; // likewise
};

} // namespace ORVTListview
