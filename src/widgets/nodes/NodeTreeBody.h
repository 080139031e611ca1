#pragma once

#include "widgets/nodes/NodeTreeParts.h"
#include "widgets/view/LabelEdit.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/ViewClicks.h"
#include "widgets/view/ViewSurface.h"
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
        , surface(shownBy, delegate)
        , clicks(shownBy)
        , labels(shownBy, delegate)
    {
    }

    Nodes nodes;
    ReportDelegate delegate;
    ViewSurface surface;
    ViewClicks clicks;
    LabelEdit labels;
    std::function<bool(const QKeyEvent &)> keyCommand;
    std::function<bool(const Node &)> draggable;
    std::function<QString(const Node &)> draggedName;

    bool editsLabels = true;
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
};

} // namespace ORVTListview
