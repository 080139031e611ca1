#include "widgets/nodes/NodeChoice.h"

#include "widgets/nodes/NodeModel.h"
#include "widgets/nodes/NodeTree.h"

#include <QtCore/QItemSelectionModel>
#include <QtWidgets/QScrollBar>

namespace ORVTListview {

NodeChoice::NodeChoice(NodeTree &view, NodeModel &model)
    : m_view(view)
    , m_model(model)
{
}

TreeNode *NodeChoice::selected() const
{
    const QModelIndexList chosen = m_view.selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? nullptr : &m_model.nodeOf(chosen.first());
}

void NodeChoice::select(const TreeNode *node)
{
    if (!node) {
        m_view.selectionModel()->clearSelection();
        return;
    }
    const bool scrolls = m_view.hasAutoScroll();
    m_view.setAutoScroll(false);
    m_view.selectionModel()->setCurrentIndex(m_model.indexOf(*node),
                                             QItemSelectionModel::ClearAndSelect);
    m_view.setAutoScroll(scrolls);
}

void NodeChoice::ensureVisible(const TreeNode &node)
{
    for (const TreeNode *above = node.parent; above->parent; above = above->parent)
        m_view.expand(m_model.indexOf(*above));
    const QModelIndex index = m_model.indexOf(node);
    if (!m_view.isVisible())
        m_showLater = index;
    m_view.executeDelayedItemsLayout(); // else the scroll bar knows fewer rows
    const int horizontal = m_view.horizontalScrollBar()->value();
    m_view.scrollTo(index);
    m_view.horizontalScrollBar()->setValue(horizontal);
}

void NodeChoice::viewShown()
{
    if (m_showLater.isValid())
        ensureVisible(m_model.nodeOf(m_showLater));
    m_showLater = QPersistentModelIndex();
}

} // namespace ORVTListview
