#pragma once

#include "widgets/nodes/NodeChoice.h"
#include "widgets/nodes/NodeModel.h"
#include "widgets/view/HandleStore.h"

#include <QtWidgets/QTreeView>

namespace ORVTListview {

class Node;

// What the nodes of a tree, as hosts have them, stand on. Nodes tell their handles
// when they go, so the handles outlive the model.
struct NodeTreeParts
{
    explicit NodeTreeParts(QTreeView &shownBy)
        : view(shownBy)
        , model(shownBy)
        , choice(shownBy, model)
    {
    }
    Q_DISABLE_COPY_MOVE(NodeTreeParts) // the parts know one another

    void removeNode(int position) { model.remove(model.at(position)); }
    void clearNodes() { model.clear(); }

    // Has the view show a node as it is. What has no children waits for the first: the
    // view would keep an index of each, which is most of the work on a tree of many.
    void showExpanded(const TreeNode &node)
    {
        const QModelIndex index = model.indexOf(node);
        if (!model.isFilling() && (!node.children.empty() || view.isExpanded(index)))
            view.setExpanded(index, node.expanded);
    }

    QTreeView &view;
    HandleStore<Node, TreeNode> handles;
    NodeModel model;
    NodeChoice choice;
};

} // namespace ORVTListview
