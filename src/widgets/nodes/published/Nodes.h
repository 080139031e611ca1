#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/NodeRelationship.h>
#include <ORVTListview/ViewCollection.h>

#include <QtCore/QString>

namespace ORVTListview {

// All nodes of a tree, in the order of adding: see ViewCollection. A node is removed
// with all below it.
class ORVT_EXPORT Nodes : public ViewCollection<Node, NodeTreeParts>
{
public:
    explicit Nodes(NodeTreeParts &parts);

    // Whether there is a node with that key.
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
};

} // namespace ORVTListview
