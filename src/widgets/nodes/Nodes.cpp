#include <ORVTListview/Nodes.h>

#include "widgets/nodes/NodePlace.h"
#include "widgets/nodes/NodeTreeParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/Node.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

const QString kind = u"node"_s;

TreeNode &nodeAt(const NodeModel &model, const QString &member, qint32 index)
{
    Lookup::checkIndex(member, kind, index, model.count());
    return model.at(index - 1);
}

TreeNode &nodeOfKey(const NodeModel &model, const QString &member, const QString &key)
{
    return Lookup::required(model.find(key), member, kind, key);
}

} // namespace

Nodes::Nodes(NodeTreeParts &parts)
    : m_parts(parts)
{
}

qint32 Nodes::Count() const
{
    return m_parts.model.count();
}

Node *Nodes::Item(qint32 Index) const
{
    return m_parts.handles.of(nodeAt(m_parts.model, u"Nodes.Item"_s, Index), m_parts);
}

Node *Nodes::Item(const QString &Key) const
{
    return m_parts.handles.of(nodeOfKey(m_parts.model, u"Nodes.Item"_s, Key), m_parts);
}

bool Nodes::Contains(const QString &Key) const
{
    return m_parts.model.find(Key);
}

Node *Nodes::Add(Node *Relative, NodeRelationship Relationship, const QString &Key,
                 const QString &Text, const QString &Image)
{
    const QString member = u"Nodes.Add"_s;
    TreeNode *relative = Node::nodeOf(Relative, m_parts, member);
    Lookup::checkKeyIsFree(member, Key, m_parts.model.find(Key));
    const NodePlace place = NodePlace::of(m_parts.model, relative, Relationship);
    return m_parts.handles.of(m_parts.model.add(*place.parent, place.row, Key, Text, Image),
                              m_parts);
}

Node *Nodes::Add(const QString &Relative, NodeRelationship Relationship, const QString &Key,
                 const QString &Text, const QString &Image)
{
    TreeNode &relative = nodeOfKey(m_parts.model, u"Nodes.Add"_s, Relative);
    return Add(m_parts.handles.of(relative, m_parts), Relationship, Key, Text, Image);
}

void Nodes::Remove(qint32 Index)
{
    m_parts.model.remove(nodeAt(m_parts.model, u"Nodes.Remove"_s, Index));
}

void Nodes::Remove(const QString &Key)
{
    m_parts.model.remove(nodeOfKey(m_parts.model, u"Nodes.Remove"_s, Key));
}

void Nodes::Clear()
{
    m_parts.model.clear();
}

} // namespace ORVTListview
