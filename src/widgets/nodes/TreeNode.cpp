#include "widgets/nodes/TreeNode.h"

#include <ORVTListview/Node.h>

namespace ORVTListview {

TreeNode::~TreeNode()
{
    if (handle)
        handle->m_node = nullptr;
}

bool TreeNode::isWithin(const TreeNode &other) const
{
    const TreeNode *node = this;
    while (node && node != &other)
        node = node->parent;
    return node;
}

} // namespace ORVTListview
