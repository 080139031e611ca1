#pragma once

#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"
#include "widgets/nodes/NodeTreeParts.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/SlowClick.h"
#include <ORVTListview/Nodes.h>

#include <functional>

class QKeyEvent;

namespace ORVTListview {

// What a NodeTree is made of.
struct NodeTreeBody : NodeTreeParts
{
    explicit NodeTreeBody(QTreeView &shownBy)
        : NodeTreeParts(shownBy)
        , nodes(*this)
        , drag(shownBy, *shownBy.viewport())
        , surface(*shownBy.viewport())
    {
    }

    Nodes nodes;
    ReportDelegate delegate;
    DragEvents drag;
    EventSurface surface;
    SlowClick slowClick;
    std::function<bool(const QKeyEvent &)> keyCommand;
    std::function<bool(const Node &)> draggable;

    bool editsLabels = true;
    bool clickAwaited = false;     // the left button went down and has not come up
    bool focusedByMouse = false;   // by the press at hand
    QPersistentModelIndex pressed; // where it went down
    QPersistentModelIndex dropHighlight;
    Node *dragged = nullptr;
    bool userActs = false; // the view is dealing with a key or the mouse
    struct Folded
    {
        Node *node = nullptr;
        bool expanded = false;
    };
    QList<Folded> folded;        // by the user, and not raised yet
    Node *checkedNode = nullptr; // by the event at hand
    bool announcesEdit = false;  // BeforeLabelEdit is being raised
    Node *labelNode = nullptr;   // the one whose text was entered
    QString enteredLabel;
};

} // namespace ORVTListview
