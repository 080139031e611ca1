// What the user does to a tree. Between a signal and what comes after it stands a
// look whether the tree still exists.

#include "base/EventGuard.h"
#include "widgets/input/RaisedKeys.h"
#include "widgets/input/RaisedMouse.h"
#include "widgets/nodes/NodeTree.h"
#include "widgets/nodes/NodeTreeBody.h"

#include <QtCore/QPointer>
#include <QtGui/QDropEvent>

#include <utility>

namespace ORVTListview {

bool NodeTree::event(QEvent *event)
{
    return EventGuard::run([this, event] {
        const QEvent::Type type = event->type();
        const QPointer<NodeTree> self(this);
        const bool handled = QTreeView::event(event);
        if (self && type == QEvent::Show)
            d->choice.viewShown();
        return handled;
    });
}

bool NodeTree::viewportEvent(QEvent *event)
{
    if (!d)
        return QTreeView::viewportEvent(event);
    return d->surface.deliver(*event, [this, event] { return QTreeView::viewportEvent(event); });
}

void NodeTree::scrollContentsBy(int dx, int dy)
{
    d->clicks.slow().stop();
    QTreeView::scrollContentsBy(dx, dy);
}

void NodeTree::focusInEvent(QFocusEvent *event)
{
    d->clicks.focusIn(*event);
    QTreeView::focusInEvent(event);
}

void NodeTree::focusOutEvent(QFocusEvent *event)
{
    d->clicks.slow().stop();
    QTreeView::focusOutEvent(event);
}

// Lets the view deal with what the user did, then tells what came of it. A pressed
// node is told of in any case.
void NodeTree::letUser(const std::function<void()> &act, Node *pressed)
{
    const QPointer<NodeTree> self(this);
    const Node *before = SelectedItem();
    const bool wasActing = std::exchange(d->userActs, true);
    act();
    if (!self)
        return;
    d->userActs = wasActing;
    keepSelectionShown();
    if (!raiseFolded())
        return;
    if (!pressed && SelectedItem() != before)
        pressed = SelectedItem();
    if (pressed && pressed->isAlive())
        raiseEvent(*this, &NodeTree::NodeClick, pressed);
}

// A node that is hidden by collapsing hands its selection up.
void NodeTree::keepSelectionShown()
{
    for (const NodeTreeBody::Folded &folded : std::as_const(d->folded)) {
        const TreeNode *chosen = d->choice.selected();
        if (!folded.expanded && folded.node->isAlive() && chosen &&
            chosen->isWithin(*folded.node->m_held))
            d->choice.select(folded.node->m_held);
    }
}

// False when a receiver has destroyed the tree.
bool NodeTree::raiseFolded()
{
    const auto all = std::exchange(d->folded, {});
    for (const NodeTreeBody::Folded &folded : all) {
        const auto event = folded.expanded ? &NodeTree::Expand : &NodeTree::Collapse;
        if (folded.node->isAlive() && !raiseEvent(*this, event, folded.node))
            return false;
    }
    return true;
}

// Keys.

void NodeTree::keyPressEvent(QKeyEvent *event)
{
    d->clicks.slow().stop();
    if (state() == EditingState) { // the editor has no use for it
        event->ignore();
        return;
    }
    raiseKeyPress(*this, *event, [this](QKeyEvent &key) { act(key); });
}

void NodeTree::keyReleaseEvent(QKeyEvent *event)
{
    if (raiseKeyUp(*this, *event))
        QTreeView::keyReleaseEvent(event);
}

void NodeTree::act(QKeyEvent &event)
{
    if (!runCommand(event))
        letUser([this, &event] { QTreeView::keyPressEvent(&event); });
}

// Whom a fold tells on the way may remove the node that the toolkit comes to.
QModelIndex NodeTree::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const quint64 removals = d->model.removals();
    const QModelIndex reached = QTreeView::moveCursor(action, modifiers);
    return d->model.removals() == removals ? reached : currentIndex();
}

bool NodeTree::runCommand(const QKeyEvent &event)
{
    if (d->keyCommand && d->keyCommand(event))
        return true;
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == 0;
    if (plain && event.key() == Qt::Key_F2 && d->editsLabels)
        StartLabelEdit();
    else if (plain && event.key() == Qt::Key_Space && hasCheckBoxes())
        toggleCurrent();
    else
        return false;
    return true;
}

void NodeTree::toggleCurrent()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return;
    TreeNode &node = d->model.nodeOf(current);
    d->model.setChecked(node, !node.checked);
    raiseEvent(*this, &NodeTree::NodeCheck, handleOf(&node));
}

// Mouse.

bool NodeTree::isOnExpander(const QModelIndex &index, QPoint place) const
{
    if (!index.isValid() || !d->model.hasChildren(index))
        return false;
    const QRect row = visualRect(index);
    const int distance = isRightToLeft() ? place.x() - row.right() : row.left() - place.x();
    return distance > 0 && distance <= indentation();
}

// A label that a slow click edits: of the node that is selected already.
bool NodeTree::isChosenLabel(const QModelIndex &index, QPoint place) const
{
    return d->editsLabels && index.isValid() && visualRect(index).contains(place) &&
           &d->model.nodeOf(index) == d->choice.selected();
}

void NodeTree::mousePressEvent(QMouseEvent *event)
{
    const bool arrives = d->clicks.takeFocusing() || d->labels.wasClosedByPress();
    if (!raiseMouse(*this, &NodeTree::MouseDown, *event))
        return;
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    const bool folds = isOnExpander(index, place);
    d->clicks.press(*event, index, !arrives && !folds && isChosenLabel(index, place));
    const bool picks =
        !folds && (event->button() == Qt::LeftButton || event->button() == Qt::RightButton);
    letUser([this, event] { QTreeView::mousePressEvent(event); },
            picks ? handleOf(index) : nullptr);
}

void NodeTree::mouseMoveEvent(QMouseEvent *event)
{
    if (raiseMouse(*this, &NodeTree::MouseMove, *event))
        letUser([this, event] { QTreeView::mouseMoveEvent(event); });
}

void NodeTree::mouseReleaseEvent(QMouseEvent *event)
{
    if (!raiseMouse(*this, &NodeTree::MouseUp, *event))
        return;
    d->checkedNode = nullptr;
    const QPointer<NodeTree> self(this);
    letUser([this, event] { QTreeView::mouseReleaseEvent(event); });
    if (!self)
        return;
    const bool clicked = d->clicks.release(*event, d->checkedNode);
    raiseNodeCheck();
    if (self && clicked)
        raiseEvent(*this, &NodeTree::Click, handleOf(d->clicks.pressed()));
}

void NodeTree::raiseNodeCheck()
{
    Node *node = std::exchange(d->checkedNode, nullptr);
    if (node && node->isAlive())
        raiseEvent(*this, &NodeTree::NodeCheck, node);
}

void NodeTree::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->clicks.doubleClick();
    const QPointer<NodeTree> self(this);
    if (event->button() == Qt::LeftButton)
        raiseEvent(*this, &NodeTree::DblClick, handleOf(indexAt(event->position().toPoint())));
    if (self)
        letUser([this, event] { QTreeView::mouseDoubleClickEvent(event); });
}

// The view cannot bear to be destroyed within this call, so the drag comes later.
void NodeTree::startDrag(Qt::DropActions)
{
    d->clicks.slow().stop();
    Node *node = handleOf(d->clicks.pressed());
    if (!node || (d->draggable && !d->draggable(*node)))
        return;
    d->dragged = node;
    d->surface.drag().begin();
}

} // namespace ORVTListview
