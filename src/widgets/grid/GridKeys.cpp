#include "widgets/grid/GridKeys.h"

#include "grid/rules/CellRules.h"
#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellSteps.h"
#include "widgets/grid/GridClipboard.h"
#include "widgets/grid/RowEditing.h"
#include "widgets/input/VirtualKeys.h"

#include <QtCore/QHash>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QTableView>

namespace ORVTListview {
namespace {

Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event)
{
    return event.modifiers() & ~Qt::KeypadModifier;
}

bool isTyped(const QKeyEvent &event)
{
    return isTyping(event) && event.text().front().isPrint() && event.text() != QStringView(u" ");
}

} // namespace

bool GridKeys::isCopying(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut) ||
           (event.key() == Qt::Key_C &&
            modifiersOf(event) == (Qt::ControlModifier | Qt::ShiftModifier));
}

bool GridKeys::compose(QInputMethodEvent &event)
{
    const bool isTold = !event.commitString().isEmpty() || !event.preeditString().isEmpty();
    return isTold && m_tools.edit.compose(m_tools.view.currentIndex(), event);
}

bool GridKeys::act(QKeyEvent &event)
{
    if (m_rows.isOn() && actOnRows(event))
        return true;
    if (m_tools.selection.isByCells() && actOnSelection(event))
        return true;
    if (m_steps.hasHistory() && actOnSteps(event))
        return true;
    if (!m_tools.rules.isUsed())
        return false;
    const QModelIndex cell = m_tools.view.currentIndex();
    if (actOnSteps(event) || actOnClipboard(event) || move(event))
        return true;
    return cell.isValid() && !m_tools.view.isColumnHidden(cell.column()) &&
           m_tools.rules.isEdited(cell.column()) && actOnCell(event, cell);
}

bool GridKeys::actOnRows(const QKeyEvent &event)
{
    // A plus may need Shift.
    const Qt::KeyboardModifiers modifiers = modifiersOf(event);
    const bool isControl = (modifiers & ~Qt::ShiftModifier) == Qt::ControlModifier;
    if (isControl && event.key() == Qt::Key_Plus)
        m_rows.add();
    else if (isControl && event.key() == Qt::Key_Minus)
        removeOnce(event);
    else if (event.key() == Qt::Key_D && modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        m_rows.duplicate();
    else if (modifiers == Qt::AltModifier && event.key() == Qt::Key_Up)
        m_rows.move(-1);
    else if (modifiers == Qt::AltModifier && event.key() == Qt::Key_Down)
        m_rows.move(1);
    else
        return false;
    return true;
}

// A key that is held would take away row after row.
void GridKeys::removeOnce(const QKeyEvent &event)
{
    if (!event.isAutoRepeat())
        m_rows.remove();
}

bool GridKeys::actOnSelection(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = modifiersOf(event);
    const bool isSpace = event.key() == Qt::Key_Space;
    if (event.matches(QKeySequence::Copy))
        m_clipboard.copy(false);
    else if (event.key() == Qt::Key_C && modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        m_clipboard.copy(true);
    else if (isSpace && modifiers == Qt::ControlModifier)
        m_tools.selection.selectColumn(m_tools.view.currentIndex().column());
    else if (isSpace && modifiers == Qt::ShiftModifier)
        m_tools.selection.selectRow();
    else
        return false;
    return true;
}

bool GridKeys::actOnSteps(const QKeyEvent &event)
{
    const bool isRedo = event.matches(QKeySequence::Redo) ||
                        (event.key() == Qt::Key_Y && modifiersOf(event) == Qt::ControlModifier);
    if (!isRedo && !event.matches(QKeySequence::Undo))
        return false;
    if (isRedo)
        m_steps.redo();
    else
        m_steps.undo();
    return true;
}

bool GridKeys::actOnClipboard(const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste))
        m_clipboard.paste();
    else if (event.matches(QKeySequence::Cut) && m_tools.selection.isByCells())
        cut();
    else
        return false;
    return true;
}

bool GridKeys::move(QKeyEvent &event)
{
    using enum CellEdit::Then;
    const Qt::KeyboardModifiers modifiers = modifiersOf(event);
    const bool isShift = modifiers == Qt::ShiftModifier;
    if (modifiers != 0 && !isShift)
        return false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        m_tools.edit.go(isShift ? Up : Down);
    else if (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
        event.setAccepted(
            m_tools.edit.go(isShift || event.key() == Qt::Key_Backtab ? Left : Right));
    else
        return false;
    return true;
}

bool GridKeys::actOnCell(QKeyEvent &event, const QModelIndex &cell)
{
    const Qt::KeyboardModifiers modifiers = modifiersOf(event);
    const CellRule::Kind kind = m_tools.rules.rule(cell.column()).kind;
    if (modifiers == 0 && event.key() == Qt::Key_F2)
        m_tools.edit.open(cell);
    else if (modifiers == 0 && event.key() == Qt::Key_Delete)
        m_tools.edit.enter(m_tools.edit.forChosen({}));
    else if (modifiers == Qt::ControlModifier && event.key() == Qt::Key_D)
        fillDown();
    else if (modifiers == 0 && event.key() == Qt::Key_Space && kind == CellRule::YesNo)
        toggle(cell);
    else if (isTyped(event))
        m_tools.edit.open(cell, event.text());
    else
        return false;
    return true;
}

void GridKeys::cut()
{
    if (m_clipboard.copy(false))
        m_tools.edit.enter(m_tools.edit.forChosen({}));
}

void GridKeys::toggle(const QModelIndex &cell)
{
    const CellRule rule = m_tools.rules.rule(cell.column());
    const bool yes = isYes(rule, cell.data().toString());
    m_tools.edit.enter(
        {{m_tools.table.itemAt(cell), cell.column(), cellChoices(rule).value(yes ? 1 : 0)}});
}

void GridKeys::fillDown()
{
    QHash<int, QString> tops;
    QList<CellEntry> entries;
    const bool isOneRow = m_tools.selection.rows().size() == 1;
    for (const CellPlace &place : m_tools.selection.chosen()) {
        const QModelIndex cell = m_tools.view.model()->index(place.row, place.column);
        const QModelIndex from = isOneRow ? m_tools.edit.neighbour(cell, CellEdit::Then::Up) : cell;
        const bool isTop = !tops.contains(place.column);
        if (isTop && from.isValid())
            tops.insert(place.column, from.data().toString());
        if (from.isValid() && (isOneRow || !isTop))
            entries.append({m_tools.table.itemAt(cell), place.column, tops.value(place.column)});
    }
    if (!entries.isEmpty())
        m_tools.edit.enter(entries);
}

} // namespace ORVTListview
