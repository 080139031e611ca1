// How the texts of a tree's nodes are edited: the events around the view's own
// editor.

#include "widgets/nodes/NodeTree.h"
#include "widgets/nodes/NodeTreeBody.h"

namespace ORVTListview {

void NodeTree::StartLabelEdit()
{
    Node *node = SelectedItem();
    if (!node || !d->labels.announce(*this, &NodeTree::BeforeLabelEdit) || !node->isAlive())
        return;
    node->EnsureVisible();
    d->labels.open(d->model.indexOf(*node->m_held));
}

void NodeTree::noteLabel(Node &node, const QString &text)
{
    d->labels.enterSoon(
        *this, &NodeTree::AfterLabelEdit, text, [&node] { return node.isAlive(); },
        [&node](const QString &label) { node.setText(label); });
}

void NodeTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    QTreeView::closeEditor(editor, LabelEdit::withoutNext(hint));
}

} // namespace ORVTListview
