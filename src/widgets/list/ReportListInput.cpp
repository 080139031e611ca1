// What the user does to a list. Between a signal and what comes after it stands a
// look whether the list still exists.

#include "base/EventGuard.h"
#include "widgets/input/RaisedKeys.h"
#include "widgets/input/RaisedMouse.h"
#include "widgets/input/VirtualKeys.h"
#include "widgets/list/ReportListBody.h"
#include "widgets/list/RowCopy.h"
#include <ORVTListview/ReportList.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QHeaderView>

#include <memory>
#include <utility>

namespace ORVTListview {

namespace {

// A letter that goes to a row that begins with it.
bool isSearched(const QKeyEvent &event)
{
    return isTyping(event) && event.text().front().isPrint();
}

// A list that was come to by keyboard has a row in focus that nobody has selected.
void chooseFocused(const QTableView &view, RowChoice &choice, const ReportModel &model)
{
    const QModelIndex current = view.currentIndex();
    if (current.isValid() && !view.selectionModel()->hasSelection())
        choice.select(&model.rowAt(current));
}

} // namespace

bool ReportList::event(QEvent *event)
{
    return EventGuard::run([this, event] {
        const QEvent::Type type = event->type();
        const QPointer<ReportList> self(this);
        if (type == QEvent::InputMethod && d && state() != EditingState &&
            d->gridParts().keys.compose(*static_cast<QInputMethodEvent *>(event)))
            return true;
        const bool handled = QTableView::event(event);
        if (!self)
            return handled;
        if (type == QEvent::FontChange || type == QEvent::StyleChange)
            updateRowHeight();
        else if (type == QEvent::Show)
            d->rowChoice.viewShown();
        else if (type == QEvent::LanguageChange)
            d->model.retellStates();
        return handled;
    });
}

bool ReportList::viewportEvent(QEvent *event)
{
    if (!d)
        return QTableView::viewportEvent(event);
    d->rowChoice.settle();
    // What comes and goes in it lies where it is put; the toolkit would paint all again.
    if (event->type() == QEvent::LayoutRequest)
        return true;
    return d->surface.deliver(*event, [this, event] { return QTableView::viewportEvent(event); });
}

void ReportList::resizeEvent(QResizeEvent *event)
{
    QTableView::resizeEvent(event);
    if (event->size().width() != event->oldSize().width()) // else a scroll bar came or went
        d->widths.viewportResized();
}

void ReportList::scrollContentsBy(int dx, int dy)
{
    d->clicks.slow().stop();
    QTableView::scrollContentsBy(dx, dy);
    if (dx == 0 || !d->kept.isOn())
        return;
    updateEditorGeometries();
    d->kept.refresh();
}

void ReportList::focusInEvent(QFocusEvent *event)
{
    d->clicks.focusIn(*event);
    QTableView::focusInEvent(event);
}

void ReportList::focusOutEvent(QFocusEvent *event)
{
    d->clicks.slow().stop();
    QTableView::focusOutEvent(event);
}

QModelIndex ReportList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (action != MoveHome && action != MoveEnd)
        return QTableView::moveCursor(action, modifiers);
    const int column = std::max(0, currentIndex().column());
    const int step = action == MoveHome ? 1 : -1;
    int place = action == MoveHome ? 0 : d->model.rowCount() - 1;
    while (place >= 0 && place < d->model.rowCount() && isRowHidden(place))
        place += step;
    return d->model.index(place, column);
}

// Keys.

void ReportList::keyPressEvent(QKeyEvent *event)
{
    d->clicks.slow().stop();
    if (state() == EditingState) { // the editor has no use for it
        event->ignore();
        return;
    }
    raiseKeyPress(*this, *event, [this](QKeyEvent &key) { act(key); });
}

void ReportList::keyReleaseEvent(QKeyEvent *event)
{
    if (raiseKeyUp(*this, *event))
        QTableView::keyReleaseEvent(event);
}

void ReportList::act(QKeyEvent &event)
{
    d->rowChoice.settle();
    GridParts &grid = d->gridParts();
    if (!grid.rules.isAtRest(*this) && (d->copies || !GridKeys::isCopying(event)) &&
        grid.keys.act(event))
        return;
    if (event.matches(QKeySequence::Copy) && !d->copies)
        event.ignore();
    else if (!runCommand(event))
        pick([this, &event] {
            const bool isSearch = isSearched(event);
            if (isSearch && labelColumn() != 0) // the view searches the current column
                d->rowChoice.setCurrentColumn(labelColumn());
            if (isSearch && (event.modifiers() & Qt::AltModifier)) // AltGr: no command, as to it
                keyboardSearch(event.text());
            else
                QTableView::keyPressEvent(&event);
        });
}

bool ReportList::runCommand(const QKeyEvent &event)
{
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == 0;
    if (event.matches(QKeySequence::Copy))
        copySelection();
    else if (plain && event.key() == Qt::Key_F2 && d->editsLabels) {
        const QPointer<ReportList> self(this);
        pick([this] { chooseFocused(*this, d->rowChoice, d->model); });
        if (self)
            StartLabelEdit();
    } else if (plain && event.key() == Qt::Key_Space && d->model.hasCheckBoxes())
        toggleCurrent();
    else if (event.modifiers() == Qt::ControlModifier && event.key() == Qt::Key_Space &&
             MultiSelect())
        pick([this] { d->rowChoice.toggleCurrent(); });
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
    copyRows(*this, d->rowChoice.selectedPlaces(), *rows);
    if (rows->hasText())
        QGuiApplication::clipboard()->setMimeData(rows.release());
}

void ReportList::toggleCurrent()
{
    const QModelIndex current = currentIndex();
    if (!current.isValid())
        return;
    ReportRow &row = d->model.rowAt(current);
    d->model.setChecked(row, !row.content.checked);
    raiseEvent(*this, &ReportList::ItemCheck, itemOf(&row));
}

// Mouse.

// A label that a slow click edits: of the one row that is selected already.
bool ReportList::isChosenLabel(const QModelIndex &index) const
{
    return d->editsLabels && index.isValid() && index.column() == labelColumn() &&
           !d->gridParts().rules.isEdited(index.column()) &&
           d->rowChoice.isOnlySelected(d->model.rowAt(index));
}

void ReportList::mousePressEvent(QMouseEvent *event)
{
    const bool arrives = d->clicks.takeFocusing() || d->labels.wasClosedByPress();
    if (!raiseMouse(*this, &ReportList::MouseDown, *event))
        return;
    const QModelIndex index = indexAt(event->position().toPoint());
    d->clicks.press(*event, index, !arrives && isChosenLabel(index));
    const bool picks = event->button() == Qt::LeftButton || event->button() == Qt::RightButton;
    ListItem *item = picks ? itemOf(index) : nullptr;
    const QPointer<ReportList> self(this);
    QTableView::mousePressEvent(event);
    if (self && item && item->isAlive())
        raiseEvent(*this, &ReportList::ItemClick, item);
}

void ReportList::mouseMoveEvent(QMouseEvent *event)
{
    if (raiseMouse(*this, &ReportList::MouseMove, *event))
        pick([this, event] { QTableView::mouseMoveEvent(event); });
}

void ReportList::mouseReleaseEvent(QMouseEvent *event)
{
    if (!raiseMouse(*this, &ReportList::MouseUp, *event))
        return;
    d->checkedItem = nullptr;
    const QPointer<ReportList> self(this);
    QTableView::mouseReleaseEvent(event);
    if (!self)
        return;
    const bool clicked = d->clicks.release(*event, d->checkedItem);
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
    d->clicks.doubleClick();
    if (event->button() == Qt::LeftButton && !raiseEvent(*this, &ReportList::DblClick))
        return;
    const QPointer<ReportList> self(this);
    QTableView::mouseDoubleClickEvent(event);
    if (self && event->button() == Qt::LeftButton)
        d->gridParts().edit.open(indexAt(event->position().toPoint()));
}

// The view cannot bear to be destroyed within this call, so the drag comes later.
void ReportList::startDrag(Qt::DropActions)
{
    d->clicks.slow().stop();
    d->surface.drag().begin();
}

} // namespace ORVTListview
