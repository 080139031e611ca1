#include "widgets/nodes/NodeChoice.h"

#include "widgets/nodes/NodeModel.h"

#include <QtWidgets/QTreeView>

namespace ORVTListview {

NodeChoice::NodeChoice(QTreeView &view, NodeModel &model)
    : m_view(view)
    , m_model(model)
    , m_scroll(view)
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
    m_scroll.makeCurrent(m_model.indexOf(*node), QItemSelectionModel::ClearAndSelect);
}

void NodeChoice::ensureVisible(const TreeNode &node)
{
    for (const TreeNode *above = node.parent; above->parent; above = above->parent)
        m_view.expand(m_model.indexOf(*above));
    m_scroll.ensureVisible(m_model.indexOf(node));
}

void NodeChoice::viewShown()
{
    const QModelIndex awaited = m_scroll.takeAwaited();
    if (awaited.isValid())
        ensureVisible(m_model.nodeOf(awaited));
}

} // namespace ORVTListview
