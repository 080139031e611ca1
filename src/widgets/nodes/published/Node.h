#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/NodeRelationship.h>
#include <ORVTListview/ViewElement.h>

#include <QtCore/QString>
#include <QtCore/QVariant>

namespace ORVTListview {

class NodeTree;

// A node of a tree: see ViewElement. Its index is its place in the order of adding, not
// the place in the tree. It goes with the one above it.
//
// None of the setters raises an event.
class ORVT_EXPORT Node : public ViewElement<Node, NodeTreeParts, TreeNode>
{
public:
    // The key of the picture. A key without a picture shows none.
    QString Image() const;
    void setImage(const QString &Key);

    // A value of the host's own. The project tree tells its nodes apart by it.
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
    template <typename, typename>
    friend class HandleStore;

    Node(NodeTreeParts &parts, TreeNode &node);

    Node *handleOf(TreeNode *node) const;
};

} // namespace ORVTListview
