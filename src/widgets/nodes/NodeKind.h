#pragma once

#include "widgets/nodes/NodeTreeParts.h"
#include "widgets/view/ViewKind.h"

namespace ORVTListview {

template <>
inline constexpr ViewKind<Node, NodeTreeParts, NodeModel, TreeNode> viewKind<Node>{
    u"Node",
    u"Nodes",
    u"node",
    u"tree",
    &NodeTreeParts::handles,
    &NodeModel::count,
    &NodeModel::at,
    &NodeModel::find,
    &NodeTreeParts::removeNode,
    &NodeTreeParts::clearNodes};

} // namespace ORVTListview
