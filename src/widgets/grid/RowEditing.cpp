#include "widgets/grid/RowEditing.h"

#include "widgets/grid/CellEdit.h"
#include "widgets/grid/CellNote.h"
#include "widgets/grid/CellTable.h"
#include "widgets/grid/GridSelection.h"

#include <QtCore/QPointer>
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
    if (!refusal.isEmpty() && m_tools.view.currentIndex().isValid())
        m_tools.note.show(m_tools.view.currentIndex(), refusal, nullptr);
    return refusal.isEmpty();
}

bool RowEditing::finish(Deed deed, const QList<int> &positions)
{
    m_host.tell(deed, indexesOf(positions));
    return true;
}

// Behind the last of the chosen rows, or at the end; the first new one becomes current.
bool RowEditing::insert(Deed deed, const QList<ListItem *> &likes)
{
    const QList<ListItem *> before = chosen();
    if (!isAllowed(deed, before))
        return false;
    const QList<int> places = positions(before);
    int position = places.isEmpty() ? m_tools.table.rows() : places.last() + 1;
    QList<ListItem *> made;
    for (const ListItem *like : likes) {
        if (!like || m_tools.table.isThere(like, 0))
            made.append(m_tools.table.insertRow(position++, like));
    }
    if (made.isEmpty())
        return false;
    const int column = std::max(0, m_tools.view.currentIndex().column());
    const QModelIndex first = m_tools.table.placeOf(made.constFirst(), column);
    m_tools.view.setCurrentIndex(first);
    const QModelIndex last = m_tools.table.placeOf(made.constLast(), column);
    m_tools.selection.select({first.row(), column}, {last.row(), column});
    return finish(deed, positions(made));
}

bool RowEditing::add()
{
    return m_isOn && insert(Deed::Add, {nullptr});
}

bool RowEditing::duplicate()
{
    const QList<ListItem *> likes = chosen();
    return m_isOn && !likes.isEmpty() && insert(Deed::Duplicate, likes);
}

bool RowEditing::remove()
{
    const QList<ListItem *> items = chosen();
    if (!m_isOn || items.isEmpty() || !isAllowed(Deed::Remove, items))
        return false;
    const QList<int> places = positions(items);
    for (auto place = places.crbegin(); place != places.crend(); ++place)
        m_tools.table.removeRow(*place);
    return finish(Deed::Remove, places);
}

bool RowEditing::canMove(int step) const
{
    const QList<int> places = positions(chosen());
    return m_isOn && !m_tools.table.isOrdered() && !places.isEmpty() &&
           places.first() + step >= 0 && places.last() + step < m_tools.table.rows();
}

bool RowEditing::move(int step)
{
    const QList<ListItem *> items = chosen();
    if (!canMove(step) || !isAllowed(Deed::Move, items) || !canMove(step))
        return false;
    QList<int> places = positions(items);
    if (step > 0)
        std::reverse(places.begin(), places.end());
    for (const int place : std::as_const(places))
        m_tools.table.moveRow(place, place + step);
    m_tools.view.scrollTo(m_tools.view.currentIndex());
    return finish(Deed::Move, positions(items));
}

} // namespace ORVTListview
