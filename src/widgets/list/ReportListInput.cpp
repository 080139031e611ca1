// What the user does to a list. Between a signal and what comes after it stands a
// look whether the list still exists.

#include "base/EventGuard.h"
#include "widgets/input/MouseArguments.h"
#include "widgets/input/RaisedKeys.h"
#include "widgets/list/ReportListBody.h"
#include "widgets/list/RowCopy.h"
#include "widgets/look/PlainToolTip.h"
#include <ORVTListview/ReportList.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>

#include <memory>
#include <utility>

namespace ORVTListview {

bool ReportList::event(QEvent *event)
{
    return EventGuard::run([this, event] {
        const QEvent::Type type = event->type();
        const QPointer<ReportList> self(this);
        const bool handled = QTableView::event(event);
        if (!self)
            return handled;
        if (type == QEvent::FontChange || type == QEvent::StyleChange)
            updateRowHeight();
        else if (type == QEvent::Show)
            d->rowChoice.viewShown();
        return handled;
    });
}

bool ReportList::viewportEvent(QEvent *event)
{
    if (!d)
        return QTableView::viewportEvent(event);
    return d->surface.deliver([this, event] {
        const QPointer<ReportList> self(this);
        if (d->drag.handle(*event)) {
            if (self)
                followDrag(*event);
            return true;
        }
        if (event->type() != QEvent::ToolTip)
            return QTableView::viewportEvent(event);
        showToolTip(*static_cast<QHelpEvent *>(event));
        return true;
    });
}

// Scrolls while a drag stays near an edge.
void ReportList::followDrag(const QEvent &event)
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

void ReportList::showToolTip(const QHelpEvent &event)
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

void ReportList::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    d->widths.viewportResized();
}

void ReportList::scrollContentsBy(int dx, int dy)
{
    d->slowClick.stop();
    QTableView::scrollContentsBy(dx, dy);
}

void ReportList::focusInEvent(QFocusEvent *event)
{
    d->focusedByMouse = event->reason() == Qt::MouseFocusReason;
    QTableView::focusInEvent(event);
}

void ReportList::focusOutEvent(QFocusEvent *event)
{
    d->slowClick.stop();
    QTableView::focusOutEvent(event);
}

QModelIndex ReportList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    const int column = std::max(0, currentIndex().column());
    const int step = action == MoveHome ? 1 : -1;
    int position = action == MoveHome ? 0 : d->model.rows() - 1;
    while (position >= 0 && position < d->model.rows() && isRowHidden(position))
        position += step;
    return d->model.index(position, column);
}

// Keys.

void ReportList::keyPressEvent(QKeyEvent *event)
{
    d->slowClick.stop();
    if (state() == EditingState) { // what the editor has no use for
        QTableView::keyPressEvent(event);
        return;
    }
    event->accept();
    if (!raiseKey(*this, &ReportList::KeyDown, *event))
        return;
    const std::optional<QString> typed = raiseCharacter(*this, &ReportList::KeyPress, *event);
    if (!typed)
        return;
    if (*typed == event->text()) {
        act(*event);
        return;
    }
    QKeyEvent replaced = retyped(*event, *typed);
    act(replaced);
    event->setAccepted(replaced.isAccepted());
}

void ReportList::keyReleaseEvent(QKeyEvent *event)
{
    if (event->isAutoRepeat() || raiseKey(*this, &ReportList::KeyUp, *event))
        QTableView::keyReleaseEvent(event);
}

void ReportList::act(QKeyEvent &event)
{
    if (event.matches(QKeySequence::Copy) && !d->copies)
        event.ignore();
    else if (!runCommand(event))
        pick([this, &event] { QTableView::keyPressEvent(&event); });
}

bool ReportList::runCommand(const QKeyEvent &event)
{
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == 0;
    if (event.matches(QKeySequence::Copy))
        copySelection();
    else if (plain && event.key() == Qt::Key_F2 && d->editsLabels)
        StartLabelEdit();
    else if (plain && event.key() == Qt::Key_Space && d->model.hasCheckBoxes())
        toggleCurrent();
    else
        return false;
    return true;
}

// Tells which row the user has come to.
void ReportList::pick(const std::function<void()> &act)
{
    const QPointer<ReportList> self(this);
    const ListItem *before = SelectedItem();
    act();
    ListItem *after = self ? SelectedItem() : nullptr;
    if (after && after != before)
        raiseEvent(*this, &ReportList::ItemClick, after);
}

void ReportList::copySelection() const
{
    auto rows = std::make_unique<QMimeData>();
    copyRows(*this, d->rowChoice.selectedPositions(), *rows);
    if (rows->hasText())
        QGuiApplication::clipboard()->setMimeData(rows.release());
}

void ReportList::toggleCurrent()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return;
    ReportRow &row = d->model.row(current.row());
    d->model.setChecked(row, !row.content.checked);
    raiseEvent(*this, &ReportList::ItemCheck, itemOf(&row));
}

// Mouse.

bool ReportList::raiseMouse(MouseSignal signal, const QMouseEvent &event)
{
    const MouseArguments mouse = mouseArguments(event, *this);
    return raiseEvent(*this, signal, mouse.Button, mouse.Shift, mouse.X, mouse.Y);
}

// A label that a slow click edits: of the one row that is selected already.
bool ReportList::isChosenLabel(const QModelIndex &index) const
{
    return d->editsLabels && index.isValid() && index.column() == labelColumn() &&
           d->rowChoice.selectedPositions() == QList<int>{index.row()};
}

void ReportList::mousePressEvent(QMouseEvent *event)
{
    const bool focused = std::exchange(d->focusedByMouse, false);
    if (!raiseMouse(&ReportList::MouseDown, *event))
        return;
    const bool left = event->button() == Qt::LeftButton;
    d->clickAwaited = left;
    d->pressed = indexAt(event->position().toPoint());
    d->slowClick.press(left && !focused && event->modifiers() == Qt::NoModifier &&
                       isChosenLabel(d->pressed));
    ListItem *item = itemOf(d->pressed);
    const QPointer<ReportList> self(this);
    QTableView::mousePressEvent(event);
    if (self && item && item->isAlive() && (left || event->button() == Qt::RightButton))
        raiseEvent(*this, &ReportList::ItemClick, item);
}

void ReportList::mouseMoveEvent(QMouseEvent *event)
{
    if (raiseMouse(&ReportList::MouseMove, *event))
        pick([this, event] { QTableView::mouseMoveEvent(event); });
}

void ReportList::mouseReleaseEvent(QMouseEvent *event)
{
    if (!raiseMouse(&ReportList::MouseUp, *event))
        return;
    d->checkedItem = nullptr;
    const QPointer<ReportList> self(this);
    QTableView::mouseReleaseEvent(event);
    if (!self)
        return;
    const QPoint position = event->position().toPoint();
    const bool left = event->button() == Qt::LeftButton;
    const bool clicked =
        left && std::exchange(d->clickAwaited, false) && viewport()->rect().contains(position);
    d->slowClick.release(clicked && !d->checkedItem && indexAt(position) == d->pressed);
    raiseItemCheck();
    if (self && clicked)
        raiseEvent(*this, &ReportList::Click);
}

void ReportList::raiseColumnClick()
{
    ColumnHeader *column = std::exchange(d->clickedColumn, nullptr);
    if (column && column->isAlive())
        raiseEvent(*this, &ReportList::ColumnClick, column);
}

void ReportList::raiseItemCheck()
{
    ListItem *item = std::exchange(d->checkedItem, nullptr);
    if (item && item->isAlive())
        raiseEvent(*this, &ReportList::ItemCheck, item);
}

void ReportList::mouseDoubleClickEvent(QMouseEvent *event)
{
    d->slowClick.stop();
    d->clickAwaited = false;
    if (event->button() != Qt::LeftButton || raiseEvent(*this, &ReportList::DblClick))
        QTableView::mouseDoubleClickEvent(event);
}

// The view cannot bear to be destroyed within this call, so the drag comes later.
void ReportList::startDrag(Qt::DropActions)
{
    d->slowClick.stop();
    d->drag.begin();
}

} // namespace ORVTListview
