#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/NodeRelationship.h>

#include <QtCore/QString>

namespace ORVTListview {

class Node;
struct NodeTreeParts;

// All nodes of a tree, in the order of adding. It lives as long as the tree.
// Indexes count from 1; keys are case-sensitive. An index or key that is not there
// raises Error (SubscriptOutOfRange, InvalidCall).
class ORVT_EXPORT Nodes
{
public:
    explicit Nodes(NodeTreeParts &parts);
    Q_DISABLE_COPY_MOVE(Nodes) // the tree's own

    qint32 Count() const;

    Node *Item(qint32 Index) const;
    Node *Item(const QString &Key) const;
    bool Contains(const QString &Key) const;

    // Adds a node beside or below another one, given itself or by its key; a null
    // Relative is the top level. Image is the key of a picture. Raises Error and
    // adds nothing for a key in use, another tree's node (both InvalidCall) or a
    // removed one (ObjectNotSet). Keys may be empty.
    Node *Add(Node *Relative, NodeRelationship Relationship, const QString &Key = QString(),
              const QString &Text = QString(), const QString &Image = QString());
    Node *Add(const QString &Relative, NodeRelationship Relationship,
              const QString &Key = QString(), const QString &Text = QString(),
              const QString &Image = QString());

    // A node goes with all below it.
    void Remove(qint32 Index);
    void Remove(const QString &Key);
    void Clear();

private:
    NodeTreeParts &m_parts;
};

} // namespace ORVTListview
