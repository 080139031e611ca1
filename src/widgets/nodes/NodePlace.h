#pragma once

#include <ORVTListview/NodeRelationship.h>

namespace ORVTListview {

class NodeModel;
struct TreeNode;

// Below which node, and before which of its children as they stand.
struct NodePlace
{
    TreeNode *parent = nullptr;
    int row = 0;

    // A null relative is the top level.
    static NodePlace of(NodeModel &model, TreeNode *relative, NodeRelationship relationship);
};

} // namespace ORVTListview
