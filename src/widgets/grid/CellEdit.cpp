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

#include <QtCore/QCoreApplication>
#include <QtGui/QInputMethodEvent>
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
    m_tools.view.installEventFilter(this);
    connect(m_tools.view.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column) { // which hiding does, too
                if (column == m_tools.view.currentIndex().column())
                    QMetaObject::invokeMethod(
                        this, [this] { leaveHidden(); }, Qt::QueuedConnection);
            });
}

// What is hidden is not to be edited; the selection stays.
void CellEdit::leaveHidden()
{
    const QModelIndex current = m_tools.view.currentIndex();
    if (!m_tools.rules.isUsed() || !current.isValid() ||
        !m_tools.view.isColumnHidden(current.column()))
        return;
    const QModelIndex right = neighbour(current, Then::Right);
    const QModelIndex next = right.isValid() ? right : neighbour(current, Then::Left);
    if (next.isValid())
        m_tools.view.selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
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
        m_tools.view.isColumnHidden(cell.column()) || OpenView::isEditing(m_tools.view))
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
    const bool hasKept = isKept(m_tools.table.itemAt(cell), cell.column());
    fill(hasKept && !typed ? std::optional(m_kept->text) : typed);
    if (hasKept)
        m_kept.reset();
    return true;
}

// The editor goes on with what is not chosen yet.
bool CellEdit::compose(const QModelIndex &cell, QInputMethodEvent &event)
{
    if (!open(cell, event.commitString()))
        return false;
    QLineEdit *line = lineOf(*m_field);
    if (line && !event.preeditString().isEmpty()) {
        QInputMethodEvent begun(event.preeditString(), event.attributes());
        QCoreApplication::sendEvent(line, &begun);
    }
    return true;
}

void CellEdit::closed()
{
    m_field = nullptr;
    goOnSoon();
}

bool CellEdit::openFor(const ListItem *item, int column)
{
    const QModelIndex cell = m_tools.table.placeOf(item, column);
    if (!cell.isValid() || !m_tools.rules.isEdited(column) || m_tools.view.isColumnHidden(column))
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
    if (watched == &m_tools.view && event->type() == QEvent::EnabledChange && m_kept)
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (m_kept && m_tools.view.isEnabled())
                    openAgain(Kept(*m_kept));
            },
            Qt::QueuedConnection);
    if (watched != m_field || event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const std::optional<Then> then = thenOf(*static_cast<const QKeyEvent *>(event));
    if (!then)
        return QObject::eventFilter(watched, event);
    m_then = *then;
    m_tools.delegate.finish(*m_field);
    return true;
}

void CellEdit::finish()
{
    if (m_field)
        m_tools.delegate.finish(*m_field);
    else if (QWidget *label = labelField())
        m_tools.delegate.finish(*label);
}

// The editor of a label, which is in the current row.
QWidget *CellEdit::labelField() const
{
    const QModelIndex current = m_tools.view.currentIndex();
    for (int column = 0; OpenView::isEditing(m_tools.view) && column < m_tools.table.columns();
         ++column) {
        if (QWidget *open = m_tools.view.indexWidget(current.siblingAtColumn(column)))
            return open;
    }
    return nullptr;
}

void CellEdit::enterSoon(const QString &text)
{
    const Entered entered{m_tools.table.itemAt(m_cell), m_cell.column(), text,
                          std::exchange(m_then, Then::Stay)};
    m_tools.labels.tellSoon([this, entered] { take(entered); });
}

void CellEdit::take(const Entered &entered)
{
    if (!m_tools.table.isThere(entered.item, entered.column))
        return;
    const bool fills = entered.then == Then::Fill;
    QList<CellEntry> entries = fills ? forChosen(entered.text) : QList<CellEntry>();
    const bool isAmong =
        std::any_of(entries.cbegin(), entries.cend(), [&entered](const CellEntry &entry) {
            return entry.item == entered.item && entry.column == entered.column;
        });
    if (!isAmong)
        entries.prepend({entered.item, entered.column, entered.text});
    const bool isSame = !fills && m_tools.table.text(*entered.item, entered.column) == entered.text;
    takeFor(entered, isSame ? QList<CellEntry>() : entries);
}

void CellEdit::takeFor(const Entered &entered, const QList<CellEntry> &entries)
{
    Entered later = entered;
    later.then = Then::Stay; // the user is elsewhere by then
    if (!entries.isEmpty() && waits([this, later, entries] { takeFor(later, entries); }))
        return;
    const QPointer<CellEdit> self(this);
    const auto refusals = entries.isEmpty() ? QList<CellRefusal>() : asked(entries);
    if (!self || !refusals)
        return;
    if (!refusals->isEmpty())
        correct(entered, *refusals);
    else if (entered.then != Then::Stay && entered.then != Then::Fill)
        go(entered.then);
}

// While a host is asked, it may let the user go on.
bool CellEdit::waits(const std::function<void()> &act)
{
    if (m_tools.writer.isAsking())
        m_waiting.enqueue(act);
    return m_tools.writer.isAsking();
}

void CellEdit::goOnSoon()
{
    if (!m_waiting.isEmpty())
        QMetaObject::invokeMethod(
            this, [this] { goOn(); }, Qt::QueuedConnection);
}

// One after the other, and none beside an open editor, which a refusal would close.
void CellEdit::goOn()
{
    if (m_waiting.isEmpty() || m_tools.writer.isAsking() || OpenView::isEditing(m_tools.view))
        return;
    const QPointer<CellEdit> self(this);
    m_waiting.dequeue()();
    if (self)
        goOnSoon();
}

// What the writer says, told to the host; none when the list is gone.
std::optional<QList<CellRefusal>> CellEdit::asked(QList<CellEntry> entries)
{
    for (const CellEntry &entry : std::as_const(entries)) {
        if (isKept(entry.item, entry.column))
            m_kept.reset();
    }
    const QPointer<CellEdit> self(this);
    const auto refusals = m_tools.writer.enter(std::move(entries));
    if (self && refusals && !refusals->isEmpty() && m_tellRefusals)
        m_tellRefusals(*refusals);
    if (self)
        goOnSoon();
    return self ? refusals : std::nullopt;
}

// Opens the editor again, with what was typed.
void CellEdit::correct(const Entered &entered, const QList<CellRefusal> &refusals)
{
    const QModelIndex cell = m_tools.table.placeOf(entered.item, entered.column);
    if (!cell.isValid()) {
        keepUnseen(entered, refusals);
        return;
    }
    const QPointer<CellEdit> self(this);
    const QString reason = sentence(refusals, entered.item, entered.column);
    makeCurrent(cell);
    if (self)
        openAgain({entered.item, entered.column, entered.text, reason});
}

// A row that a filter has taken away meanwhile has its text when it is edited again.
void CellEdit::keepUnseen(const Entered &entered, const QList<CellRefusal> &refusals)
{
    if (!m_tools.table.isThere(entered.item, entered.column))
        return;
    const QString reason = sentence(refusals, nullptr, -1);
    m_kept = Kept{entered.item, entered.column, entered.text, reason};
    m_tools.note.show({}, reason, nullptr);
}

// Where no editor can be open, as in a list that is disabled, the text waits for one.
void CellEdit::openAgain(const Kept &kept)
{
    const QModelIndex cell = m_tools.table.placeOf(kept.item, kept.column);
    if (!cell.isValid())
        return;
    const bool isOpen = open(cell, kept.text);
    if (!isOpen)
        m_kept = kept;
    m_tools.note.show(cell, kept.reason, isOpen ? m_field : nullptr);
}

bool CellEdit::isKept(const ListItem *item, int column) const
{
    return m_kept && m_kept->item == item && m_kept->column == column;
}

bool CellEdit::enter(QList<CellEntry> entries)
{
    if (waits([this, entries] { enter(entries); }))
        return false;
    const auto refusals = asked(std::move(entries));
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
    if (!cell.isValid()) {
        m_tools.note.show({}, sentence(refusals, nullptr, -1), nullptr);
        return;
    }
    m_tools.view.scrollTo(cell);
    m_tools.note.show(cell, sentence(refusals, first.item, first.column), nullptr);
}

// The reason, or for several cells, and for another one than it is shown at, a line for
// each.
QString CellEdit::sentence(const QList<CellRefusal> &refusals, const ListItem *item,
                           int column) const
{
    constexpr qsizetype most = 5;
    const CellRefusal &first = refusals.constFirst();
    if (refusals.size() == 1 && first.item == item && first.column == column)
        return first.reason;
    QStringList lines;
    for (const CellRefusal &refusal : refusals.first(std::min(most, refusals.size()))) {
        if (m_tools.table.isThere(refusal.item, 0))
            lines.append(u"%1, %2: %3"_s.arg(m_tools.table.text(*refusal.item, 0),
                                             m_tools.table.columnText(refusal.column),
                                             refusal.reason));
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
