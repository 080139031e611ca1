#include <ORVTListview/Nodes.h>

#include "widgets/nodes/NodeKind.h"
#include "widgets/nodes/NodePlace.h"
#include "widgets/view/ViewCollections.h"
#include <ORVTListview/Node.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

template class ViewCollection<Node, NodeTreeParts>;

Nodes::Nodes(NodeTreeParts &parts)
    : ViewCollection(parts)
{
}

bool Nodes::Contains(const QString &Key) const
{
    return m_parts.model.find(Key);
}

Node *Nodes::Add(Node *Relative, NodeRelationship Relationship, const QString &Key,
                 const QString &Text, const QString &Image)
{
    TreeNode *relative = Node::heldOf(Relative, m_parts, u"Nodes.Add"_s);
    Lookup::checkKeyIsFree({u"Nodes", "Add"}, Key, m_parts.model.find(Key));
    const NodePlace place = NodePlace::of(m_parts.model, relative, Relationship);
    return m_parts.handles.of(m_parts.model.add(*place.parent, place.row, Key, Text, Image),
                              m_parts);
}

Node *Nodes::Add(const QString &Relative, NodeRelationship Relationship, const QString &Key,
                 const QString &Text, const QString &Image)
{
    TreeNode &relative =
        Lookup::required(m_parts.model.find(Relative), {u"Nodes", "Add"}, u"node", Relative);
    return Add(m_parts.handles.of(relative, m_parts), Relationship, Key, Text, Image);
}

} // namespace ORVTListview
