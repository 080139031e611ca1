#pragma once

#include <ORVTListview/Node.h>

#include <memory>
#include <vector>

namespace ORVTListview {

// Makes the handles of a tree's nodes when they are asked for. All of them are
// kept, those of removed nodes too, since nobody can know which of them a host
// still holds.
class NodeHandles
{
public:
    explicit NodeHandles(NodeTreeParts &parts);
    Q_DISABLE_COPY_MOVE(NodeHandles) // handles are held by address

    Node *of(TreeNode &node);

private:
    NodeTreeParts &m_parts;
    std::vector<std::unique_ptr<Node>> m_nodes;
};

} // namespace ORVTListview
