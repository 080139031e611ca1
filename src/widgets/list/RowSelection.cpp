#include "widgets/list/RowSelection.h"

#include "widgets/list/ReportModel.h"

#include <QtCore/QPointer>

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

// As many as the toolkit merges without delay.
constexpr int few = 64;

} // namespace

RowSelection::RowSelection(ReportModel &model)
    : QItemSelectionModel(&model)
    , m_model(model)
{
    connect(this, &RowSelection::selectionChanged, this, &RowSelection::noteChange);
    connect(&model, &ReportModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex &, int first, int last) {
                for (int place = first; place <= last && m_count > 0; ++place)
                    note(m_model.rowAt(place), false);
            });
    connect(&model, &ReportModel::columnsInserted, this, [this] {
        if (!m_isByCells) // whole rows have the new one, too
            settleSoon();
    });
    connect(&model, &ReportModel::columnsRemoved, this, [this] {
        if (m_model.columns() == 0)
            noteNone();
    });
}

void RowSelection::note(ReportRow &row, bool selected)
{
    if (row.selected == selected)
        return;
    row.selected = selected;
    m_count += selected ? 1 : -1;
}

void RowSelection::noteNone()
{
    m_lagsBehind = false;
    for (int position = 0; position < m_model.rows() && m_count > 0; ++position)
        note(m_model.row(position), false);
    m_count = 0; // the rows may have gone with all that they knew
}

// A part of a row goes with its column, and the row stays selected.
void RowSelection::note(const QItemSelection &changed, bool selected)
{
    for (const QItemSelectionRange &range : changed) {
        if (range.left() > 0 || range.right() < m_model.columns() - 1)
            continue;
        for (int place = range.top(); place <= range.bottom(); ++place)
            note(m_model.rowAt(place), selected);
    }
}

// A row of which a part was deselected may have another one that is selected.
void RowSelection::noteParts(const QItemSelection &changed, bool selected)
{
    for (const QItemSelectionRange &range : changed) {
        for (int place = range.top(); place <= range.bottom(); ++place)
            note(m_model.rowAt(place), selected || rowIntersectsSelection(place));
    }
}

void RowSelection::noteUnseen()
{
    for (int position = 0; m_model.isOrdered() && position < m_model.rows() && m_count > 0;
         ++position) {
        if (m_model.row(position).selected && m_model.placeOf(m_model.row(position)) < 0)
            note(m_model.row(position), false);
    }
}

void RowSelection::followOrder()
{
    noteUnseen();
    if (m_lagsBehind || m_count == 0)
        return;
    const QList<int> missing = untouched();
    if (!missing.isEmpty())
        choose(rangesOf(missing), Select);
}

bool RowSelection::releaseAll()
{
    const QItemSelection chosen = selection();
    const bool isAll = chosen.size() == 1 && chosen.constFirst().height() == m_model.rowCount() &&
                       chosen.constFirst().width() == m_model.columns();
    return !isAll || choose({}, Clear);
}

// What the rows know already. False when a receiver has destroyed all this.
bool RowSelection::choose(const QItemSelection &wanted, SelectionFlags command)
{
    const QPointer<RowSelection> self(this);
    m_isSettling = true;
    QItemSelectionModel::select(wanted, command);
    if (self)
        m_isSettling = false;
    return self;
}

// The places of rows that are selected and have no range.
QList<int> RowSelection::untouched() const
{
    std::vector<bool> isTouched(static_cast<std::size_t>(m_model.rowCount()), false);
    for (const QItemSelectionRange &range : selection()) {
        for (int place = range.top(); range.isValid() && place <= range.bottom(); ++place)
            isTouched[static_cast<std::size_t>(place)] = true;
    }
    QList<int> places = this->places();
    places.removeIf([&](int place) { return isTouched[static_cast<std::size_t>(place)]; });
    return places;
}

void RowSelection::noteChange(const QItemSelection &selected, const QItemSelection &deselected)
{
    if (m_isSettling)
        return;
    if (m_isByCells) {
        noteParts(deselected, false);
        noteParts(selected, true);
        return;
    }
    note(deselected, false);
    note(selected, true);
}

void RowSelection::setSelected(ReportRow &row, bool selected)
{
    const bool isPart = m_isByCells && row.selected && selected; // the whole row is meant
    if ((row.selected == selected && !isPart) || m_model.columns() == 0)
        return;
    const bool isAtOnce = isPart || (!m_lagsBehind && m_count < few);
    const int place = isAtOnce ? m_model.placeOf(row) : -1;
    if (place >= 0) {
        select(rowsFrom(place, place), selected ? Select : Deselect);
        return;
    }
    note(row, selected);
    settleSoon();
}

// Rows stay selected, as a whole.
void RowSelection::setByCells(bool on)
{
    settle();
    m_isByCells = on;
    if (!on && m_count > 0 && m_model.columns() > 0)
        select(ranges(), ClearAndSelect);
}

QList<int> RowSelection::positions(int most) const
{
    QList<int> positions;
    const int count = std::min(m_count, most);
    for (int position = 0; positions.size() < count; ++position) {
        if (m_model.row(position).selected)
            positions.append(position);
    }
    return positions;
}

QList<int> RowSelection::places() const
{
    QList<int> places;
    for (int place = 0; place < m_model.rowCount() && places.size() < m_count; ++place) {
        if (m_model.rowAt(place).selected)
            places.append(place);
    }
    return places;
}

void RowSelection::settleSoon()
{
    if (m_count == 0 || std::exchange(m_lagsBehind, true))
        return;
    QMetaObject::invokeMethod(
        this, [this] { settle(); }, Qt::QueuedConnection);
}

// From nothing, since many ranges cost as much as their number times those before.
void RowSelection::settle()
{
    if (!std::exchange(m_lagsBehind, false))
        return;
    const QItemSelection wanted = m_isByCells ? rangesOfCells() : ranges();
    if (choose({}, Clear))
        choose(wanted, Select);
}

QItemSelection RowSelection::rowsFrom(int first, int last) const
{
    return {m_model.index(first, 0), m_model.index(last, m_model.columns() - 1)};
}

QItemSelection RowSelection::rangesOf(const QList<int> &chosen) const
{
    QItemSelection ranges;
    for (qsizetype first = 0, last = 0; first < chosen.size(); first = last + 1) {
        last = first;
        while (last + 1 < chosen.size() && chosen.at(last + 1) == chosen.at(last) + 1)
            ++last;
        ranges += rowsFrom(chosen.at(first), chosen.at(last));
    }
    return ranges;
}

// What is selected in rows that stay so, and the whole of those that have come to it.
QItemSelection RowSelection::rangesOfCells() const
{
    QItemSelection wanted;
    for (const int place : places()) {
        const bool isNew = !rowIntersectsSelection(place);
        for (const QItemSelectionRange &range : isNew ? rowsFrom(place, place) : selection()) {
            if (range.top() <= place && place <= range.bottom())
                wanted.append(QItemSelectionRange(m_model.index(place, range.left()),
                                                  m_model.index(place, range.right())));
        }
    }
    return wanted;
}

void RowSelection::select(const QItemSelection &selection, SelectionFlags command)
{
    settle();
    if (command.testFlag(Clear))
        noteUnseen(); // that the program has selected
    if (command.testFlag(Clear) && m_count > few && !selection.isEmpty()) {
        QItemSelectionModel::select(QItemSelection(), Clear);
        command.setFlag(Clear, false);
    }
    QItemSelectionModel::select(selection, command);
}

void RowSelection::reset()
{
    noteNone();
    QItemSelectionModel::reset();
}

} // namespace ORVTListview
