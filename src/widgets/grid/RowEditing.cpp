#include "widgets/grid/RowEditing.h"

#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellNote.h"
#include "widgets/grid/CellTable.h"
#include "widgets/grid/GridSelection.h"

#include <QtCore/QItemSelectionModel>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtCore/QSet>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

QList<qint32> indexesOf(QList<int> positions)
{
    for (int &position : positions)
        ++position;
    return positions;
}

} // namespace

QList<ListItem *> RowEditing::chosen() const
{
    m_tools.table.settle();
    QList<ListItem *> items;
    for (const int row : m_tools.selection.rows())
        items.append(m_tools.table.itemAt(m_tools.view.model()->index(row, 0)));
    return items;
}

// In ascending order, of what is still there.
QList<int> RowEditing::positions(const QList<ListItem *> &items) const
{
    QList<int> positions;
    for (const ListItem *item : items) {
        if (m_tools.table.isThere(item, 0))
            positions.append(m_tools.table.positionOf(*item));
    }
    std::sort(positions.begin(), positions.end());
    return positions;
}

bool RowEditing::isAllowed(Deed deed, const QList<ListItem *> &items)
{
    if (std::exchange(m_isAsking, true))
        return false;
    const QPointer<CellEdit> alive(&m_tools.edit);
    m_tools.edit.finish();
    QString refusal;
    if (!m_host.ask(deed, indexesOf(positions(items)), refusal) || !alive)
        return false;
    m_isAsking = false;
    if (refusal.isEmpty())
        return true;
    const QModelIndex current = m_tools.view.currentIndex();
    m_tools.view.scrollTo(current);
    m_tools.note.show(current, refusal, nullptr);
    return false;
}

bool RowEditing::finish(Deed deed, const QList<int> &positions)
{
    m_host.tell(deed, indexesOf(positions));
    return true;
}

// Behind the last of the chosen rows, or at the end.
bool RowEditing::insert(Deed deed, QList<ListItem *> likes)
{
    const QList<ListItem *> before = chosen();
    if (!isAllowed(deed, before))
        return false;
    likes.removeIf(
        [this](const ListItem *like) { return like && !m_tools.table.isThere(like, 0); });
    if (likes.isEmpty())
        return false;
    const QList<int> places = positions(before);
    const int position = places.isEmpty() ? m_tools.table.rows() : places.last() + 1;
    const QPointer<CellEdit> alive(&m_tools.edit);
    const QList<ListItem *> made = m_tools.table.insertRows(position, likes);
    if (alive)
        choose(made);
    return alive && finish(deed, positions(made));
}

// The first one becomes current. What is told of it may end all this.
void RowEditing::choose(const QList<ListItem *> &made)
{
    const int column = seenColumn();
    const auto place = [&](const ListItem *item) { return m_tools.table.placeOf(item, column); };
    const QPointer<CellEdit> alive(&m_tools.edit);
    m_tools.view.selectionModel()->setCurrentIndex(place(made.constFirst()),
                                                   QItemSelectionModel::NoUpdate);
    if (!alive)
        return;
    const QModelIndex first = place(made.constFirst());
    const QModelIndex last = place(made.constLast());
    if (first.isValid() && last.isValid())
        m_tools.selection.select({first.row(), column}, {last.row(), column});
}

// The current one, or the first where that is hidden.
int RowEditing::seenColumn() const
{
    const int column = m_tools.view.currentIndex().column();
    if (column >= 0 && !m_tools.view.isColumnHidden(column))
        return column;
    const QHeaderView &header = *m_tools.view.horizontalHeader();
    return m_tools.selection.columnsFrom(header.logicalIndex(0)).value(0, 0);
}

bool RowEditing::add()
{
    return m_isOn && insert(Deed::Add, {nullptr});
}

bool RowEditing::duplicate()
{
    if (!m_isOn)
        return false;
    const QList<ListItem *> likes = chosen();
    return !likes.isEmpty() && insert(Deed::Duplicate, likes);
}

bool RowEditing::remove()
{
    const QList<ListItem *> items = m_isOn ? chosen() : QList<ListItem *>();
    if (items.isEmpty() || !isAllowed(Deed::Remove, items))
        return false;
    const QPointer<CellEdit> alive(&m_tools.edit);
    const QList<int> places = positions(items);
    leave(items);
    if (alive)
        take(items);
    return alive && finish(Deed::Remove, places);
}

// A notice costs as much as there are rows, so many that lie apart go from the end.
void RowEditing::take(QList<ListItem *> items)
{
    constexpr int few = 16;
    const auto place = [this](const ListItem *item) {
        return m_tools.table.placeOf(item, 0).row();
    };
    std::sort(items.begin(), items.end(), [&](const ListItem *one, const ListItem *other) {
        return place(one) < place(other);
    });
    int pieces = 1;
    for (qsizetype i = 1; i < items.size(); ++i)
        pieces += place(items.at(i)) == place(items.at(i - 1)) + 1 ? 0 : 1;
    if (pieces > few)
        m_tools.table.doAtEnd(items, [this, items] { takePieces(items); });
    else
        takePieces(items);
}

// From the last on, in as few notices as there are gaps; each may take others away, or put
// them elsewhere.
void RowEditing::takePieces(QList<ListItem *> items)
{
    CellTable &table = m_tools.table;
    const auto place = [&](const ListItem *item) { return table.placeOf(item, 0).row(); };
    const QPointer<CellEdit> alive(&m_tools.edit);
    while (alive && !items.isEmpty()) {
        int first = place(items.takeLast());
        if (first < 0)
            continue;
        const int end = first + 1;
        for (; !items.isEmpty() && place(items.constLast()) == first - 1; --first)
            items.removeLast();
        table.removeShown(first, end - first);
    }
}

// Below, or above where none is seen below.
QModelIndex RowEditing::stayingBeside(const QModelIndex &current,
                                      const QList<ListItem *> &items) const
{
    const QSet<ListItem *> going(items.cbegin(), items.cend());
    for (const int step : {1, -1}) {
        for (QModelIndex cell = current; cell.isValid();
             cell = cell.siblingAtRow(cell.row() + step)) {
            if (!going.contains(m_tools.table.itemAt(cell)) &&
                !m_tools.view.isRowHidden(cell.row()))
                return cell;
        }
    }
    return {};
}

// The current cell goes beforehand: what is told of it may change rows, which nobody may
// while some are going.
void RowEditing::leave(const QList<ListItem *> &items)
{
    QItemSelectionModel &selection = *m_tools.view.selectionModel();
    const QModelIndex current = m_tools.view.currentIndex();
    const QPersistentModelIndex next = stayingBeside(current, items);
    const bool isSingle = m_tools.view.selectionMode() == QAbstractItemView::SingleSelection;
    const QPointer<CellEdit> alive(&m_tools.edit);
    selection.clearSelection();
    if (alive && !next.isValid())
        selection.clearCurrentIndex();
    else if (alive && next != m_tools.view.currentIndex() && isSingle)
        m_tools.view.setCurrentIndex(next); // which selects it
    else if (alive)
        selection.setCurrentIndex(next, QItemSelectionModel::NoUpdate);
}

bool RowEditing::canMove(int step) const
{
    return fits(positions(chosen()), step);
}

bool RowEditing::fits(const QList<int> &places, int step) const
{
    return m_isOn && !m_tools.table.isOrdered() && !places.isEmpty() &&
           places.first() + step >= 0 && places.last() + step < m_tools.table.rows();
}

// The host may have changed rows and selection when it was asked.
bool RowEditing::move(int step)
{
    const QList<ListItem *> items = chosen();
    if (!fits(positions(items), step) || !isAllowed(Deed::Move, items))
        return false;
    const QList<int> places = positions(items);
    if (!fits(places, step))
        return false;
    const QPointer<CellEdit> alive(&m_tools.edit);
    m_tools.table.moveRows(places, step);
    if (!alive)
        return false;
    m_tools.view.scrollTo(m_tools.view.currentIndex());
    return finish(Deed::Move, positions(items));
}

} // namespace ORVTListview
