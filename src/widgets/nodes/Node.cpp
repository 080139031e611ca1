#include <ORVTListview/Node.h>

#include "widgets/nodes/NodePlace.h"
#include "widgets/nodes/NodeTreeParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

Node::Node(NodeTreeParts &parts, TreeNode &node)
    : m_parts(&parts)
    , m_node(&node)
{
}

Node::~Node() = default;

TreeNode &Node::node(const char *member) const
{
    if (!m_node)
        throw Error(ObjectNotSet, u"Node."_s + QLatin1StringView(member),
                    u"The node has been removed"_s);
    return *m_node;
}

TreeNode *Node::nodeOf(const Node *node, const NodeTreeParts &parts, const QString &source)
{
    if (!node)
        return nullptr;
    if (!node->isAlive())
        throw Error(ObjectNotSet, source, u"The node has been removed"_s);
    if (node->m_parts != &parts)
        throw Error(InvalidCall, source, u"The node is another tree's"_s);
    return node->m_node;
}

// Null for null and for the root, which no caller is to see.
Node *Node::handleOf(TreeNode *node) const
{
    return node && node->parent ? m_parts->handles.of(*node, *m_parts) : nullptr;
}

qint32 Node::Index() const
{
    return m_parts->model.positionOf(node("Index")) + 1;
}

QString Node::Key() const
{
    return node("Key").key;
}

void Node::setKey(const QString &Key)
{
    TreeNode &held = node("setKey");
    const TreeNode *user = m_parts->model.find(Key);
    Lookup::checkKeyIsFree(u"Node.setKey"_s, Key, user && user != &held);
    m_parts->model.setKey(held, Key);
}

QString Node::Text() const
{
    return node("Text").text;
}

void Node::setText(const QString &Text)
{
    m_parts->model.setText(node("setText"), Text);
}

QString Node::Image() const
{
    return node("Image").image;
}

void Node::setImage(const QString &Key)
{
    m_parts->model.setImage(node("setImage"), Key);
}

QVariant Node::Tag() const
{
    return node("Tag").tag;
}

void Node::setTag(const QVariant &Tag)
{
    node("setTag").tag = Tag;
}

Node *Node::Parent() const
{
    return handleOf(node("Parent").parent);
}

void Node::setParent(Node *Parent)
{
    MoveTo(Parent, NodeRelationship::Child);
}

Node *Node::Child() const
{
    const TreeNode &held = node("Child");
    return held.children.empty() ? nullptr : handleOf(held.children.front().get());
}

qint32 Node::Children() const
{
    return static_cast<qint32>(node("Children").children.size());
}

Node *Node::Next() const
{
    const TreeNode &held = node("Next");
    const auto next = static_cast<std::size_t>(held.row) + 1;
    const auto &siblings = held.parent->children;
    return next < siblings.size() ? handleOf(siblings[next].get()) : nullptr;
}

Node *Node::Previous() const
{
    const TreeNode &held = node("Previous");
    if (held.row == 0)
        return nullptr;
    return handleOf(held.parent->children[static_cast<std::size_t>(held.row) - 1].get());
}

void Node::MoveTo(Node *Relative, NodeRelationship Relationship)
{
    TreeNode &held = node("MoveTo");
    TreeNode *relative = nodeOf(Relative, *m_parts, u"Node.MoveTo"_s);
    const NodePlace place = NodePlace::of(m_parts->model, relative, Relationship);
    if (relative == &held || place.parent->isWithin(held))
        throw Error(InvalidCall, u"Node.MoveTo"_s, u"A node cannot be moved below itself"_s);
    m_parts->model.move(held, *place.parent, place.row);
}

bool Node::Expanded() const
{
    return node("Expanded").expanded;
}

void Node::setExpanded(bool Expanded)
{
    TreeNode &held = node("setExpanded");
    held.expanded = Expanded;
    m_parts->showExpanded(held);
}

qint32 Node::ForeColor() const
{
    return node("ForeColor").foreColor;
}

void Node::setForeColor(qint32 Color)
{
    m_parts->model.setForeColor(node("setForeColor"), Color);
}

bool Node::Checked() const
{
    return node("Checked").checked;
}

void Node::setChecked(bool Checked)
{
    m_parts->model.setChecked(node("setChecked"), Checked);
}

bool Node::Selected() const
{
    return m_parts->choice.selected() == &node("Selected");
}

void Node::setSelected(bool Selected)
{
    TreeNode &held = node("setSelected");
    if (Selected)
        m_parts->choice.select(&held);
    else if (m_parts->choice.selected() == &held)
        m_parts->choice.select(nullptr);
}

void Node::EnsureVisible()
{
    m_parts->choice.ensureVisible(node("EnsureVisible"));
}

} // namespace ORVTListview
