#pragma once

#include "widgets/input/DragEvents.h"
#include "widgets/input/EventSurface.h"
#include "widgets/nodes/NodeChoice.h"
#include "widgets/nodes/NodeHandles.h"
#include "widgets/nodes/NodeModel.h"
#include "widgets/nodes/NodeTree.h"
#include "widgets/view/ReportDelegate.h"
#include "widgets/view/SlowClick.h"
#include <ORVTListview/Nodes.h>

namespace ORVTListview {

// What a NodeTree is made of. Nodes tell their handles when they go, so the
// handles outlive the model.
struct NodeTreeParts
{
    explicit NodeTreeParts(NodeTree &owner);
    Q_DISABLE_COPY_MOVE(NodeTreeParts) // the parts know one another

    // What a caller's node stands for; null for null. Raises Error of that source
    // for another tree's node or a removed one.
    TreeNode *nodeOf(const Node *node, const QString &source) const;

    NodeTree &tree;
    NodeHandles handles;
    NodeModel model;
    NodeChoice choice;
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
