#include "widgets/nodes/NodePlace.h"

#include "widgets/nodes/NodeModel.h"

namespace ORVTListview {

NodePlace NodePlace::of(NodeModel &model, TreeNode *relative, NodeRelationship relationship)
{
    const bool isInside = !relative || relationship == NodeRelationship::Child;
    TreeNode *parent = relative ? relative : &model.root();
    if (!isInside)
        parent = relative->parent;
    const int end = static_cast<int>(parent->children.size());
    switch (relationship) {
    case NodeRelationship::First:
        return {parent, 0};
    case NodeRelationship::Next:
        return {parent, relative ? relative->row + 1 : end};
    case NodeRelationship::Previous:
        return {parent, relative ? relative->row : 0};
    case NodeRelationship::Last:
    case NodeRelationship::Child:
        break;
    }
    return {parent, end};
}

} // namespace ORVTListview
