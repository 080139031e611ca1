#pragma once

#include "base/TextHash.h"
#include "tree/rules/PageArrangement.h"
#include <ORVTListview/Node.h>

#include <optional>

namespace ORVTListview {

class NodeTree;

// The nodes of a project in a node tree: the device, below it the pages, below
// them the categories. Hosts may change any of it at any time; what is not there
// is passed over.
class ProjectNodes
{
public:
    explicit ProjectNodes(NodeTree &tree);

    // In place of all nodes.
    void build(const QList<Pages> &pages);

    // Gives the device, the named pages and the categories their texts in the
    // language of now, but for those whose text somebody else has changed.
    void localise();

    // Where the categories stand, pages counted as they stand.
    QList<PageArrangement::Place> places() const;

    // The first node of all; null in an empty tree.
    Node *device() const;

    // By tag; a node without a number for a tag is neither.
    static std::optional<LwType> categoryOf(const Node &node);
    static bool isPage(const Node &node);

    // A node that a host has put below a category stands for one of its points.
    static bool isPoint(const Node &node);

    // The page that a node is or stands on; null for others.
    static Node *pageOf(Node &node);

    // Whether there is a name left for one more page, and a key.
    bool canAddPage() const;
    Node *addPage();

    // Puts a category on a page, where its type belongs.
    static void move(Node &category, Node &page);

private:
    Node *addPage(qint32 page, Node *device);
    void addCategory(LwType type, const QString &key, Node *page);
    QString shownText(const QString &key, const QString &english);
    void localise(const QString &key, const QString &english);

    NodeTree &m_tree;
    TextHash<QString> m_shown; // the texts that stand here by our doing, by key
};

} // namespace ORVTListview
