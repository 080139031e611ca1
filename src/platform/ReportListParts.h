#pragma once

#include "platform/ColumnHeaders.h"
#include "platform/ColumnWidths.h"
#include "platform/DragEvents.h"
#include "platform/EventSurface.h"
#include "platform/ListHandles.h"
#include "platform/ListItems.h"
#include "platform/ReportDelegate.h"
#include "platform/ReportList.h"
#include "platform/ReportModel.h"
#include "platform/RowChoice.h"
#include "platform/SlowClick.h"

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
