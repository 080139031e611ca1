// What the user does to a tree. Between a signal and what comes after it stands a
// look whether the tree still exists.

#include "base/EventGuard.h"
#include "widgets/input/MouseArguments.h"
#include "widgets/input/RaisedKeys.h"
#include "widgets/look/PlainToolTip.h"
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
    return d->surface.deliver([this, event] {
        const QPointer<NodeTree> self(this);
        if (d->drag.handle(*event)) {
            if (self)
                followDrag(*event);
            return true;
        }
        if (event->type() != QEvent::ToolTip)
            return QTreeView::viewportEvent(event);
        showToolTip(*static_cast<QHelpEvent *>(event));
        return true;
    });
}

// Scrolls while a drag stays near an edge.
void NodeTree::followDrag(const QEvent &event)
{
    if (event.type() == QEvent::DragLeave || event.type() == QEvent::Drop) {
        stopAutoScroll();
    } else if (event.type() == QEvent::DragMove && hasAutoScroll()) {
        const QPoint position = static_cast<const QDropEvent &>(event).position().toPoint();
        const int margin = autoScrollMargin();
        const QRect inner = viewport()->rect().adjusted(margin, margin, -margin, -margin);
        if (!inner.contains(position))
            startAutoScroll();
    }
}

void NodeTree::showToolTip(const QHelpEvent &event)
{
    const QModelIndex index = indexAt(event.pos());
    QString text;
    if (index.isValid()) {
        QStyleOptionViewItem option;
        initViewItemOption(&option);
        option.rect = visualRect(index);
        if (d->delegate.isElided(option, index))
            text = index.data().toString();
    }
    showPlainToolTip(event, text, *viewport());
}

void NodeTree::scrollContentsBy(int dx, int dy)
{
    d->slowClick.stop();
    QTreeView::scrollContentsBy(dx, dy);
}

void NodeTree::focusInEvent(QFocusEvent *event)
{
    d->focusedByMouse = event->reason() == Qt::MouseFocusReason;
    QTreeView::focusInEvent(event);
}

void NodeTree::focusOutEvent(QFocusEvent *event)
{
    d->slowClick.stop();
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
            chosen->isWithin(*folded.node->m_node))
            d->choice.select(folded.node->m_node);
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
    d->slowClick.stop();
    if (state() == EditingState) { // what the editor has no use for
        QTreeView::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!raiseKey(*this, &NodeTree::KeyDown, *event))
        return;
    const std::optional<QString> typed = raiseCharacter(*this, &NodeTree::KeyPress, *event);
    if (!typed)
        return;
    if (*typed == event->text()) {
        act(*event);
        return;
    }
    QKeyEvent replaced = retyped(*event, *typed);
    const QPointer<NodeTree> self(this);
    act(replaced);
    event->setAccepted(!self || replaced.isAccepted());
}

void NodeTree::keyReleaseEvent(QKeyEvent *event)
{
    if (event->isAutoRepeat() || raiseKey(*this, &NodeTree::KeyUp, *event))
        QTreeView::keyReleaseEvent(event);
}

void NodeTree::act(QKeyEvent &event)
{
    if (!runCommand(event))
        letUser([this, &event] { QTreeView::keyPressEvent(&event); });
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

bool NodeTree::raiseMouse(MouseSignal signal, const QMouseEvent &event)
{
    const MouseArguments mouse = mouseArguments(event, *this);
    return raiseEvent(*this, signal, mouse.Button, mouse.Shift, mouse.X, mouse.Y);
}

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
    const bool focused = std::exchange(d->focusedByMouse, false);
    if (!raiseMouse(&NodeTree::MouseDown, *event))
        return;
    const QPoint place = event->position().toPoint();
    const bool left = event->button() == Qt::LeftButton;
    const QModelIndex index = indexAt(place);
    const bool folds = isOnExpander(index, place);
    d->clickAwaited = left;
    d->pressed = index;
    d->slowClick.press(left && !focused && !folds && event->modifiers() == Qt::NoModifier &&
                       isChosenLabel(index, place));
    const bool picks = !folds && (left || event->button() == Qt::RightButton);
    letUser([this, event] { QTreeView::mousePressEvent(event); },
            picks ? handleOf(index) : nullptr);
}

void NodeTree::mouseMoveEvent(QMouseEvent *event)
{
    if (raiseMouse(&NodeTree::MouseMove, *event))
        letUser([this, event] { QTreeView::mouseMoveEvent(event); });
}

void NodeTree::mouseReleaseEvent(QMouseEvent *event)
{
    if (!raiseMouse(&NodeTree::MouseUp, *event))
        return;
    d->checkedNode = nullptr;
    const QPointer<NodeTree> self(this);
    letUser([this, event] { QTreeView::mouseReleaseEvent(event); });
    if (!self)
        return;
    const QPoint place = event->position().toPoint();
    const bool clicked = event->button() == Qt::LeftButton &&
                         std::exchange(d->clickAwaited, false) &&
                         viewport()->rect().contains(place);
    d->slowClick.release(clicked && !d->checkedNode && indexAt(place) == d->pressed);
    raiseNodeCheck();
    if (self && clicked)
        raiseEvent(*this, &NodeTree::Click, handleOf(d->pressed));
}

void NodeTree::raiseNodeCheck()
{
    Node *node = std::exchange(d->checkedNode, nullptr);
    if (node && node->isAlive())
        raiseEvent(*this, &NodeTree::NodeCheck, node);
}

void NodeTree::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->slowClick.stop();
    d->clickAwaited = false;
    const QPointer<NodeTree> self(this);
    if (event->button() == Qt::LeftButton)
        raiseEvent(*this, &NodeTree::DblClick, handleOf(indexAt(event->position().toPoint())));
    if (self)
        letUser([this, event] { QTreeView::mouseDoubleClickEvent(event); });
}

// The view cannot bear to be destroyed within this call, so the drag comes later.
void NodeTree::startDrag(Qt::DropActions)
{
    d->slowClick.stop();
    Node *node = handleOf(d->pressed);
    if (!node || (d->draggable && !d->draggable(*node)))
        return;
    d->dragged = node;
    d->drag.begin();
}

} // namespace ORVTListview
