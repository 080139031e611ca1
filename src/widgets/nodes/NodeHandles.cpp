#include "widgets/nodes/NodeHandles.h"

#include "widgets/nodes/TreeNode.h"

namespace ORVTListview {

NodeHandles::NodeHandles(NodeTreeParts &parts)
    : m_parts(parts)
{
}

Node *NodeHandles::of(TreeNode &node)
{
    if (!node.handle) {
        m_nodes.emplace_back(new Node(m_parts, node));
        node.handle = m_nodes.back().get();
    }
    return node.handle;
}

} // namespace ORVTListview
