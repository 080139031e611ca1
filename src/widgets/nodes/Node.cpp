#include <ORVTListview/Node.h>

#include "widgets/nodes/NodeKind.h"
#include "widgets/nodes/NodePlace.h"
#include "widgets/view/ViewElements.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

template class ViewElement<Node, NodeTreeParts, TreeNode>;

Node::Node(NodeTreeParts &parts, TreeNode &node)
    : ViewElement(parts, node)
{
}

// Null for null and for the root, which no caller is to see.
Node *Node::handleOf(TreeNode *node) const
{
    return node && node->parent ? m_parts->handles.of(*node, *m_parts) : nullptr;
}

QString Node::Image() const
{
    return held("Image").image;
}

void Node::setImage(const QString &Key)
{
    partsFor("setImage").model.setImage(*m_held, Key);
}

QVariant Node::Tag() const
{
    return held("Tag").tag;
}

void Node::setTag(const QVariant &Tag)
{
    held("setTag").tag = Tag;
}

Node *Node::Parent() const
{
    return handleOf(held("Parent").parent);
}

void Node::setParent(Node *Parent)
{
    MoveTo(Parent, NodeRelationship::Child);
}

Node *Node::Child() const
{
    const TreeNode &node = held("Child");
    return node.children.empty() ? nullptr : handleOf(node.children.front().get());
}

qint32 Node::Children() const
{
    return static_cast<qint32>(held("Children").children.size());
}

Node *Node::Next() const
{
    const TreeNode &node = held("Next");
    const auto next = static_cast<std::size_t>(node.row) + 1;
    const auto &siblings = node.parent->children;
    return next < siblings.size() ? handleOf(siblings[next].get()) : nullptr;
}

Node *Node::Previous() const
{
    const TreeNode &node = held("Previous");
    if (node.row == 0)
        return nullptr;
    return handleOf(node.parent->children[static_cast<std::size_t>(node.row) - 1].get());
}

void Node::MoveTo(Node *Relative, NodeRelationship Relationship)
{
    TreeNode &node = held("MoveTo");
    TreeNode *relative = heldOf(Relative, *m_parts, u"Node.MoveTo"_s);
    const NodePlace place = NodePlace::of(m_parts->model, relative, Relationship);
    if (relative == &node || place.parent->isWithin(node))
        throw Error(InvalidCall, u"Node.MoveTo"_s, u"A node cannot be moved below itself"_s);
    m_parts->model.move(node, *place.parent, place.row);
}

bool Node::Expanded() const
{
    return held("Expanded").expanded;
}

void Node::setExpanded(bool Expanded)
{
    TreeNode &node = held("setExpanded");
    node.expanded = Expanded;
    m_parts->showExpanded(node);
}

qint32 Node::ForeColor() const
{
    return held("ForeColor").foreColor;
}

void Node::setForeColor(qint32 Color)
{
    partsFor("setForeColor").model.setForeColor(*m_held, Color);
}

bool Node::Checked() const
{
    return held("Checked").checked;
}

void Node::setChecked(bool Checked)
{
    partsFor("setChecked").model.setChecked(*m_held, Checked);
}

bool Node::Selected() const
{
    return partsFor("Selected").choice.selected() == m_held;
}

void Node::setSelected(bool Selected)
{
    TreeNode &node = held("setSelected");
    if (Selected)
        m_parts->choice.select(&node);
    else if (m_parts->choice.selected() == &node)
        m_parts->choice.select(nullptr);
}

void Node::EnsureVisible()
{
    partsFor("EnsureVisible").choice.ensureVisible(*m_held);
}

} // namespace ORVTListview
