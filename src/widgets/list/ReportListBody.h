#pragma once

#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"
#include "widgets/list/ReportListParts.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/SlowClick.h"
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
        , drag(shownBy, *shownBy.viewport())
        , surface(*shownBy.viewport())
    {
    }

    ListItems listItems;
    ColumnHeaders columnHeaders;
    ReportDelegate delegate;
    DragEvents drag;
    EventSurface surface;
    SlowClick slowClick;

    bool copies = true;
    bool editsLabels = true;
    bool clickAwaited = false;             // the left button went down and has not come up
    bool focusedByMouse = false;           // by the press at hand
    QPersistentModelIndex pressed;         // where it went down
    ListItem *checkedItem = nullptr;       // by the event at hand
    ColumnHeader *clickedColumn = nullptr; // likewise
    bool announcesEdit = false;            // BeforeLabelEdit is being raised
    ListItem *labelItem = nullptr;         // the one whose label was entered
    QString enteredLabel;
};

} // namespace ORVTListview
