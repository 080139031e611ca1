#pragma once

#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"
#include "widgets/list/ColumnWidths.h"
#include "widgets/list/ListHandles.h"
#include "widgets/list/ReportModel.h"
#include "widgets/list/RowChoice.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/SlowClick.h"
#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ReportList.h>

namespace ORVTListview {

// What a ReportList is made of. Rows tell their handles when they go, so the
// handles outlive the model.
struct ReportListParts
{
    explicit ReportListParts(ReportList &owner);
    Q_DISABLE_COPY_MOVE(ReportListParts) // the parts know one another

    ReportList &list;
    ListHandles handles;
    ReportModel model;
    RowChoice rowChoice;
    ColumnWidths widths;
    ListItems items;
    ColumnHeaders headers;
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
