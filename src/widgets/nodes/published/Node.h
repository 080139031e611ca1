#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/NodeRelationship.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

class NodeTree;
struct NodeTreeParts;
struct TreeNode;

// A node of a tree, made by the tree on request and owned by it. The same node
// always has the same Node; its address stays good until the tree is destroyed.
// Once the node has been removed, with or without one above it, every member but
// isAlive() raises Error (ObjectNotSet): a removed node never comes back, not even
// one with its key.
//
// None of the setters raises an event.
class ORVT_EXPORT Node
{
public:
    ~Node();
    Q_DISABLE_COPY_MOVE(Node) // its address is what hosts hold

    bool isAlive() const { return m_node != nullptr; }

    // Its place in the collection, from 1 to Nodes::Count(): the order of adding,
    // not the place in the tree. Changes when older nodes are removed.
    qint32 Index() const;

    // Empty, or unique in the tree: setKey raises Error (InvalidCall) for a key in
    // use. Case-sensitive.
    QString Key() const;
    void setKey(const QString &Key);

    QString Text() const;
    void setText(const QString &Text);

    // The key of the picture. A key without a picture shows none.
    QString Image() const;
    void setImage(const QString &Key);

    QVariant Tag() const;
    void setTag(const QVariant &Tag);

    // Null at the top level. Setting it moves the node, with all below it, behind
    // the last child there; see MoveTo.
    Node *Parent() const;
    void setParent(Node *Parent);

    // The first child, null without one, and the number of children.
    Node *Child() const;
    qint32 Children() const;

    // The neighbours below the same parent, null at the end.
    Node *Next() const;
    Node *Previous() const;

    // Moves the node, with all below it; it keeps everything, its place in the
    // collection, selection and expansion included. A null Relative is the top
    // level. Raises Error for another tree's or a removed node (InvalidCall,
    // ObjectNotSet), and when Relative is the node or would put it below itself.
    void MoveTo(Node *Relative, NodeRelationship Relationship = NodeRelationship::Child);

    // Kept without children too: the first child then shows at once.
    bool Expanded() const;
    void setExpanded(bool Expanded);

    // As Colour.h says; the window's text, 0x80000008, at first. A selected node
    // shows the palette's colour.
    qint32 ForeColor() const;
    void setForeColor(qint32 Color);

    // Seen where the tree shows check boxes.
    bool Checked() const;
    void setChecked(bool Checked);

    // Selecting a node deselects the one that was; nothing scrolls or expands.
    bool Selected() const;
    void setSelected(bool Selected);

    // Expands all above it and scrolls up or down as far as it takes. On a hidden
    // tree it scrolls once that is shown.
    void EnsureVisible();

private:
    friend class Nodes;
    friend class NodeTree;
    template <typename Handle, typename Held>
    friend class HandleStore;

    Node(NodeTreeParts &parts, TreeNode &node);

    // What a caller's node of this tree stands for; null for null.
    static TreeNode *nodeOf(const Node *node, const NodeTreeParts &parts, const QString &source);

    void letGo() { m_node = nullptr; }
    TreeNode &node(const char *member) const;
    Node *handleOf(TreeNode *node) const;

    NodeTreeParts *m_parts;
    TreeNode *m_node; // null once it is gone
};

} // namespace ORVTListview
