#pragma once

#include "widgets/view/ViewScroll.h"

class QTreeView;

namespace ORVTListview {

class NodeModel;
struct TreeNode;

// Which node of a tree is selected, and which one is in view. What the program
// selects scrolls and expands nothing; ensureVisible does.
class NodeChoice
{
public:
    NodeChoice(QTreeView &view, NodeModel &model);
    Q_DISABLE_COPY_MOVE(NodeChoice) // follows one tree

    TreeNode *selected() const;
    void select(const TreeNode *node); // null deselects

    // A hidden view catches up when it is shown.
    void ensureVisible(const TreeNode &node);
    void viewShown();

private:
    QTreeView &m_view;
    NodeModel &m_model;
    ViewScroll m_scroll;
};

} // namespace ORVTListview
