#pragma once

#include "widgets/input/DragEvents.h"

class QKeyEvent;

namespace ORVTListview {

class Node;
class NodeTree;
class ProjectNodes;

// How users arrange the categories: a category is dragged onto another page, or
// goes a page up or down with Alt+Shift+Up and Down. Dropped on the device, and
// taken down from the last page, it gets a new page while there is a name for one.
//
// What else is dragged over the tree is refused unless a receiver of the events
// says otherwise.
// Why it is so: docs/decisions/tree.md.
class CategoryMoves final : public DropTarget
{
public:
    CategoryMoves(NodeTree &tree, ProjectNodes &nodes);

    bool handleKey(const QKeyEvent &event);

    qint32 effectOf(const QDropEvent &event) override;
    void show(const QDropEvent &event, qint32 effect) override;
    void hide() override;
    void drop(const QDropEvent &event, qint32 effect) override;

private:
    Node *draggedCategory(const QDropEvent &event) const;
    Node *targetOf(const QDropEvent &event) const;
    Node *neighbour(const Node &page, bool up) const;
    bool takes(const Node &target, Node &category) const;
    void moveTo(Node &target, Node &category);

    NodeTree &m_tree;
    ProjectNodes &m_nodes;
};

} // namespace ORVTListview
