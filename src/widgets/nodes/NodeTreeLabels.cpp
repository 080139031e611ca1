// How the texts of a tree's nodes are edited: the events around the view's own
// editor.

#include "base/EventGuard.h"
#include "widgets/nodes/NodeTree.h"
#include "widgets/nodes/NodeTreeBody.h"

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

namespace ORVTListview {

void NodeTree::StartLabelEdit()
{
    Node *node = SelectedItem();
    if (!node || d->announcesEdit || state() == EditingState)
        return;
    qint16 cancel = 0;
    const QPointer<NodeTree> self(this);
    {
        d->announcesEdit = true;
        const auto announced = qScopeGuard([self] {
            if (self)
                self->d->announcesEdit = false;
        });
        raiseEvent(*this, &NodeTree::BeforeLabelEdit, cancel);
    }
    if (!self || cancel != 0 || !node->isAlive())
        return;
    node->EnsureVisible();
    edit(d->model.indexOf(*node->m_node), AllEditTriggers, nullptr);
}

// The editor is being closed while this is called; the event comes later.
void NodeTree::noteLabel(const QModelIndex &index, const QString &text)
{
    d->labelNode = handleOf(index);
    d->enteredLabel = text;
    QMetaObject::invokeMethod(this, &NodeTree::finishLabelEdit, Qt::QueuedConnection);
}

void NodeTree::finishLabelEdit()
{
    Node *node = d->labelNode;
    QString label = d->enteredLabel;
    qint16 cancel = 0;
    const bool isThere = raiseEvent(*this, &NodeTree::AfterLabelEdit, cancel, label);
    if (isThere && cancel == 0 && node->isAlive())
        node->setText(label);
}

void NodeTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // No going on to edit the next node, which would not be announced.
    const bool next = hint == QAbstractItemDelegate::EditNextItem ||
                      hint == QAbstractItemDelegate::EditPreviousItem;
    QTreeView::closeEditor(editor, next ? QAbstractItemDelegate::NoHint : hint);
}

} // namespace ORVTListview
