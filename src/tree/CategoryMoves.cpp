#include "tree/CategoryMoves.h"

#include "tree/ProjectNodes.h"
#include "widgets/nodes/NodeTree.h"

#include <QtCore/QMimeData>
#include <QtGui/QDropEvent>
#include <QtGui/QKeyEvent>

namespace ORVTListview {

CategoryMoves::CategoryMoves(NodeTree &tree, ProjectNodes &nodes)
    : m_tree(tree)
    , m_nodes(nodes)
{
}

// The category of this tree that a drag carries, null for any other drag.
Node *CategoryMoves::draggedCategory(const QDropEvent &event) const
{
    if (event.source() != &m_tree || !event.mimeData()->hasFormat(NodeTree::nodeMimeType()))
        return nullptr;
    Node *node = m_tree.draggedNode();
    return node && ProjectNodes::categoryOf(*node) ? node : nullptr;
}

// The page that is meant, or the device for a new one.
Node *CategoryMoves::targetOf(const QDropEvent &event) const
{
    Node *node = m_tree.nodeAt(event.position().toPoint());
    if (!node || node == m_nodes.device())
        return node;
    return ProjectNodes::pageOf(*node);
}

bool CategoryMoves::takes(const Node &target, Node &category) const
{
    if (&target == m_nodes.device())
        return m_nodes.canAddPage();
    return category.Parent() != &target;
}

qint32 CategoryMoves::effectOf(const QDropEvent &event)
{
    Node *category = draggedCategory(event);
    if (!category) // what the receivers have accepted on its way is theirs
        return event.type() == QEvent::Drop ? static_cast<qint32>(event.proposedAction())
                                            : DragEvents::None;
    const Node *target = targetOf(event);
    const bool isTaken =
        event.possibleActions().testFlag(Qt::MoveAction) && target && takes(*target, *category);
    return isTaken ? DragEvents::Move : DragEvents::None;
}

void CategoryMoves::show(const QDropEvent &event, qint32 effect)
{
    const bool marks = draggedCategory(event) && effect == DragEvents::Move;
    m_tree.setDropHighlight(marks ? targetOf(event) : nullptr);
}

void CategoryMoves::hide()
{
    m_tree.setDropHighlight(nullptr);
}

void CategoryMoves::drop(const QDropEvent &event, qint32 effect)
{
    Node *category = draggedCategory(event);
    Node *target = category ? targetOf(event) : nullptr;
    if (target && effect == DragEvents::Move && takes(*target, *category))
        moveTo(*target, *category);
}

void CategoryMoves::moveTo(Node &target, Node &category)
{
    Node &page = &target == m_nodes.device() ? *m_nodes.addPage() : target;
    ProjectNodes::move(category, page);
    m_tree.setSelectedItem(&category);
    category.EnsureVisible();
}

// The device stands for the page that is not there yet.
Node *CategoryMoves::neighbour(const Node &page, bool up) const
{
    if (up)
        return page.Previous();
    Node *next = page.Next();
    return next ? next : m_nodes.device();
}

bool CategoryMoves::handleKey(const QKeyEvent &event)
{
    const bool up = event.key() == Qt::Key_Up;
    const bool moves =
        (event.modifiers() & ~Qt::KeypadModifier) == (Qt::AltModifier | Qt::ShiftModifier);
    if (!moves || (!up && event.key() != Qt::Key_Down))
        return false;
    Node *category = m_tree.SelectedItem();
    const Node *page =
        category && ProjectNodes::categoryOf(*category) ? ProjectNodes::pageOf(*category) : nullptr;
    Node *target = page ? neighbour(*page, up) : nullptr;
    if (target && takes(*target, *category))
        moveTo(*target, *category);
    return true;
}

} // namespace ORVTListview
