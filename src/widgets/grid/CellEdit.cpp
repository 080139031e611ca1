#include "widgets/grid/CellEdit.h"

#include "shared/texts/TextTable.h"
#include "widgets/grid/CellNote.h"
#include "widgets/grid/CheckField.h"
#include "widgets/grid/ChoiceField.h"
#include "widgets/grid/GridSelection.h"
#include "widgets/grid/NumberField.h"
#include "widgets/view/LabelEdit.h"
#include "widgets/view/OpenView.h"
#include "widgets/view/ReportDelegate.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// The editor, or the field in it.
QLineEdit *lineOf(QWidget &field)
{
    auto *line = qobject_cast<QLineEdit *>(&field);
    return line ? line : field.findChild<QLineEdit *>();
}

std::optional<CellEdit::Then> thenOf(const QKeyEvent &key)
{
    using enum CellEdit::Then;
    const bool isShift = key.modifiers().testFlag(Qt::ShiftModifier);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (key.modifiers().testFlag(Qt::ControlModifier))
            return Fill;
        return isShift ? Up : Down;
    case Qt::Key_Tab:
        return isShift ? Left : Right;
    case Qt::Key_Backtab:
        return Left;
    default:
        return std::nullopt;
    }
}

} // namespace

CellEdit::CellEdit(const Tools &tools)
    : m_tools(tools)
{
    m_tools.delegate.setEditorMaker([this](QWidget *parent, const QModelIndex &cell) {
        return m_isOpening ? makeField(parent, cell) : nullptr;
    });
}

CellEdit::~CellEdit()
{
    m_tools.delegate.setEditorMaker({});
}

// Null for a plain field.
QWidget *CellEdit::makeField(QWidget *parent, const QModelIndex &cell) const
{
    const CellRule rule = m_tools.rules.completeRule(cell.column());
    switch (rule.kind) {
    case CellRule::Number:
        return new NumberField(rule, parent);
    case CellRule::YesNo:
        return new CheckField(rule, parent);
    case CellRule::Choice:
    case CellRule::PointName:
        return rule.choices.isEmpty() ? nullptr : new ChoiceField(rule.choices, parent);
    case CellRule::Text:
    case CellRule::NotEdited:
        break;
    }
    return nullptr;
}

bool CellEdit::open(const QModelIndex &cell, const std::optional<QString> &typed)
{
    if (!cell.isValid() || !m_tools.rules.isEdited(cell.column()) || !m_tools.view.isEnabled() ||
        OpenView::isEditing(m_tools.view))
        return false;
    m_tools.note.hide();
    m_cell = cell;
    m_then = Then::Stay;
    m_tools.view.scrollTo(cell);
    m_isOpening = true;
    m_tools.labels.open(cell);
    m_isOpening = false;
    m_field = m_tools.view.indexWidget(cell);
    if (!m_field)
        return false;
    m_field->setAccessibleName(m_tools.table.columnText(cell.column()));
    m_field->installEventFilter(this);
    fill(typed);
    return true;
}

bool CellEdit::openFor(const ListItem *item, int column)
{
    const QModelIndex cell = m_tools.table.placeOf(item, column);
    if (!cell.isValid() || !m_tools.rules.isEdited(column))
        return false;
    const QPointer<CellEdit> self(this);
    makeCurrent(cell);
    return self && open(m_tools.table.placeOf(item, column));
}

// What was typed counts as the user's own: see ReportDelegate::setEditorData.
void CellEdit::fill(const std::optional<QString> &typed)
{
    if (auto *box = qobject_cast<CheckField *>(m_field)) {
        box->choose(typed.value_or(QString()));
        return;
    }
    QLineEdit *line = lineOf(*m_field);
    if (!line)
        return;
    if (typed) {
        line->setText(*typed);
        line->setModified(true);
    }
    line->end(false);
}

bool CellEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const std::optional<Then> then = thenOf(*static_cast<const QKeyEvent *>(event));
    if (!then)
        return QObject::eventFilter(watched, event);
    m_then = *then;
    m_tools.delegate.finish(*m_field);
    return true;
}

void CellEdit::enterSoon(const QString &text)
{
    const Entered entered{m_tools.table.itemAt(m_cell), m_cell.column(), text,
                          std::exchange(m_then, Then::Stay)};
    m_tools.labels.tellSoon([this, entered] { take(entered); });
}

void CellEdit::take(const Entered &entered)
{
    const QModelIndex cell = m_tools.table.placeOf(entered.item, entered.column);
    if (!cell.isValid())
        return;
    const bool fills = entered.then == Then::Fill;
    const QList<CellEntry> entries =
        fills ? forChosen(entered.text)
              : QList<CellEntry>{{entered.item, entered.column, entered.text}};
    const bool isSame = !fills && m_tools.table.text(*entered.item, entered.column) == entered.text;
    const QPointer<CellEdit> self(this);
    const auto refusals = isSame ? QList<CellRefusal>() : asked(entries);
    if (!self || !refusals)
        return;
    if (!refusals->isEmpty())
        correct(entered, refusals->constFirst().reason);
    else if (entered.then != Then::Stay && !fills)
        go(entered.then);
}

// What the writer says, told to the host; none when the list is gone.
std::optional<QList<CellRefusal>> CellEdit::asked(const QList<CellEntry> &entries)
{
    const QPointer<CellEdit> self(this);
    const auto refusals = m_tools.writer.enter(entries);
    if (self && refusals && !refusals->isEmpty() && m_tellRefusals)
        m_tellRefusals(*refusals);
    return self ? refusals : std::nullopt;
}

// Opens the editor again, with what was typed.
void CellEdit::correct(const Entered &entered, const QString &reason)
{
    const QModelIndex cell = m_tools.table.placeOf(entered.item, entered.column);
    if (!cell.isValid())
        return;
    const QPointer<CellEdit> self(this);
    makeCurrent(cell);
    if (self && open(m_tools.table.placeOf(entered.item, entered.column), entered.text))
        m_tools.note.show(m_cell, reason, m_field);
}

bool CellEdit::enter(const QList<CellEntry> &entries)
{
    const auto refusals = asked(entries);
    if (refusals && !refusals->isEmpty())
        show(*refusals);
    return refusals && refusals->isEmpty();
}

void CellEdit::refuse(const QList<CellRefusal> &refusals)
{
    const QPointer<CellEdit> self(this);
    if (m_tellRefusals)
        m_tellRefusals(refusals);
    if (self)
        show(refusals);
}

// At the first of the cells.
void CellEdit::show(const QList<CellRefusal> &refusals)
{
    const CellRefusal &first = refusals.constFirst();
    const QModelIndex cell = m_tools.table.placeOf(first.item, first.column);
    if (!cell.isValid())
        return;
    m_tools.view.scrollTo(cell);
    m_tools.note.show(cell, sentence(refusals), nullptr);
}

// The reason, or for several cells a line for each.
QString CellEdit::sentence(const QList<CellRefusal> &refusals) const
{
    constexpr qsizetype most = 5;
    if (refusals.size() == 1)
        return refusals.constFirst().reason;
    QStringList lines;
    for (const CellRefusal &refusal : refusals.first(std::min(most, refusals.size()))) {
        const QModelIndex row = m_tools.table.placeOf(refusal.item, 0);
        if (row.isValid())
            lines.append(u"%1, %2: %3"_s.arg(
                row.data().toString(), m_tools.table.columnText(refusal.column), refusal.reason));
    }
    if (refusals.size() > most)
        lines.append(Localise(u"and %1 more"_s).arg(refusals.size() - most));
    return lines.join(u'\n');
}

QList<CellEntry> CellEdit::forChosen(const QString &text) const
{
    QList<CellEntry> cells;
    for (const CellPlace &place : m_tools.selection.chosen()) {
        const QModelIndex cell = m_tools.view.model()->index(place.row, place.column);
        cells.append({m_tools.table.itemAt(cell), place.column, text});
    }
    return cells;
}

QModelIndex CellEdit::neighbour(const QModelIndex &from, Then direction) const
{
    const QTableView &view = m_tools.view;
    const int step = direction == Then::Up || direction == Then::Left ? -1 : 1;
    if (direction == Then::Up || direction == Then::Down) {
        int row = from.row() + step;
        while (row >= 0 && row < view.model()->rowCount() && view.isRowHidden(row))
            row += step;
        return from.siblingAtRow(row);
    }
    const QHeaderView &header = *view.horizontalHeader();
    int visual = header.visualIndex(from.column()) + step;
    while (visual >= 0 && visual < header.count() &&
           header.isSectionHidden(header.logicalIndex(visual)))
        visual += step;
    return from.siblingAtColumn(header.logicalIndex(visual));
}

bool CellEdit::go(Then direction)
{
    const QModelIndex next = neighbour(m_tools.view.currentIndex(), direction);
    if (!next.isValid())
        return false;
    makeCurrent(next);
    return true;
}

void CellEdit::makeCurrent(const QModelIndex &cell)
{
    // With Shift held the view would reach from the former one to this.
    const auto move = [&view = m_tools.view, place = QPersistentModelIndex(cell)] {
        if (!place.isValid() || view.currentIndex() == place)
            return;
        const bool isRow = view.selectionBehavior() == QAbstractItemView::SelectRows;
        view.setCurrentIndex(place);
        view.selectionModel()->select(place, isRow ? QItemSelectionModel::ClearAndSelect |
                                                         QItemSelectionModel::Rows
                                                   : QItemSelectionModel::ClearAndSelect);
    };
    if (m_pick)
        m_pick(move);
    else
        move();
}

} // namespace ORVTListview
