#include "widgets/nodes/TreeNode.h"

#include "widgets/view/HandleStore.h"

namespace ORVTListview {

TreeNode::~TreeNode()
{
    if (handle)
        handle->letGo();
}

bool TreeNode::isWithin(const TreeNode &other) const
{
    const TreeNode *node = this;
    while (node && node != &other)
        node = node->parent;
    return node;
}

} // namespace ORVTListview
