#include "widgets/list/ReportCells.h"

#include "widgets/list/AddedRows.h"
#include "widgets/list/ReportHeader.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>

#include <memory>
#include <utility>

namespace ORVTListview {

namespace {

// A handle that a host gives is looked at as by the list's own members.
class GivenRow final : public ViewElement<ListItem, ReportListParts, ReportRow>
{
public:
    using ViewElement::heldIn;
    using ViewElement::heldOf;
};

} // namespace

ReportCells::ReportCells(ReportListParts &parts)
    : m_parts(parts)
{
}

ListItem *ReportCells::itemAt(const QModelIndex &place) const
{
    return place.isValid() ? m_parts.items.of(m_parts.model.rowAt(place), m_parts) : nullptr;
}

ReportRow *ReportCells::rowOf(const ListItem *item) const
{
    return GivenRow::heldIn(item, m_parts);
}

QModelIndex ReportCells::placeOf(const ListItem *item, int column) const
{
    const ReportRow *row = rowOf(item);
    return row ? m_parts.model.indexOf(*row, column) : QModelIndex();
}

bool ReportCells::isThere(const ListItem *item, int column) const
{
    return column >= 0 && column < m_parts.model.columns() && rowOf(item);
}

void ReportCells::check(const ListItem *item, const QString &member) const
{
    GivenRow::heldOf(item, m_parts, member);
}

const QString &ReportCells::text(const ListItem &item, int column) const
{
    return m_parts.model.cellText(*rowOf(&item), column);
}

const QString *ReportCells::textIn(const ListItem *item, int column) const
{
    const bool isColumn = column >= 0 && column < m_parts.model.columns();
    const ReportRow *row = isColumn ? rowOf(item) : nullptr;
    return row ? &m_parts.model.cellText(*row, column) : nullptr;
}

QString ReportCells::exchangeText(ListItem &item, int column, const QString &text)
{
    return m_parts.model.exchangeText(*rowOf(&item), column, text);
}

void ReportCells::setTexts(const std::function<void()> &change)
{
    m_parts.model.gather(change);
}

int ReportCells::columns() const
{
    return m_parts.model.columns();
}

QString ReportCells::columnKey(int column) const
{
    return m_parts.model.column(column).key;
}

QString ReportCells::columnText(int column) const
{
    return m_parts.model.column(column).text;
}

const ColumnHeader *ReportCells::headerOf(int column) const
{
    return m_parts.headers.of(m_parts.model.column(column), m_parts);
}

int ReportCells::columnOf(const ColumnHeader *header) const
{
    return header && header->isAlive() ? header->Index() - 1 : -1;
}

CellState ReportCells::state(const ListItem *item, int column) const
{
    return isThere(item, column) ? ReportModel::state(*rowOf(item), column) : CellState::Plain;
}

void ReportCells::setState(const ListItem *item, int column, CellState state)
{
    if (isThere(item, column))
        m_parts.model.setState(*rowOf(item), column, state);
}

int ReportCells::rows() const
{
    return m_parts.model.rows();
}

const QString &ReportCells::textOf(int position, int column) const
{
    return m_parts.model.cellText(m_parts.model.row(position), column);
}

int ReportCells::positionOf(const ListItem &item) const
{
    return item.Index() - 1;
}

QList<ListItem *> ReportCells::insertRows(int position, const QList<ListItem *> &likes)
{
    ReportModel::Rows rows;
    for (const ListItem *like : likes) {
        const ReportRow *source = rowOf(like);
        RowContent content = source ? source->content : RowContent();
        content.key.clear();
        rows.push_back(std::make_unique<ReportRow>(std::move(content)));
        if (source)
            rows.back()->states = source->states;
    }
    return addRows(m_parts, position, std::move(rows));
}

void ReportCells::removeShown(int place, int count)
{
    m_parts.removeShown(place, count);
}

void ReportCells::doAtEnd(const QList<ListItem *> &items, const std::function<void()> &act)
{
    QList<int> places;
    for (const ListItem *item : items)
        places.append(placeOf(item, 0).row());
    m_parts.doAtEnd(places, act);
}

void ReportCells::moveRows(const QList<int> &positions, int step)
{
    m_parts.model.moveRows(positions, step);
}

void ReportCells::setUnseenFollower(const std::function<void()> &follow)
{
    m_parts.unseenFollower = follow;
}

bool ReportCells::isOrdered() const
{
    return m_parts.model.isOrdered();
}

void ReportCells::show(const Order &positions)
{
    m_parts.show(positions);
}

void ReportCells::setOrderer(const std::function<Order()> &order)
{
    m_parts.model.setOrderer(order);
}

void ReportCells::setSortRank(int column, int rank)
{
    m_parts.model.setSortRank(column, rank);
}

void ReportCells::fitColumn(int column)
{
    if (column < 0)
        m_parts.widths.fit();
    else
        m_parts.widths.fit(column);
}

// A host may have given the view another one.
ReportHeader *ReportCells::header() const
{
    return qobject_cast<ReportHeader *>(m_parts.view.horizontalHeader());
}

bool ReportCells::isHeaderHeld() const
{
    const ReportHeader *own = header();
    return own && own->isHeld();
}

bool ReportCells::hasHeaderRoom() const
{
    return header();
}

void ReportCells::setHeaderRoom(int above, int below)
{
    if (ReportHeader *own = header())
        own->setRoom(above, below);
}

bool ReportCells::keepsColumns() const
{
    return m_parts.kept.isOn();
}

void ReportCells::setKeepsColumns(bool on)
{
    m_parts.kept.setOn(on);
}

int ReportCells::shift(int column) const
{
    return m_parts.kept.shift(column);
}

QRect ReportCells::keptArea() const
{
    return m_parts.kept.area();
}

int ReportCells::columnAt(int x) const
{
    return m_parts.view.horizontalHeader()->logicalIndexAt(x - m_parts.kept.shiftAt(x));
}

void ReportCells::setEdited(int column, bool edited)
{
    m_parts.model.column(column).isEdited = edited;
}

bool ReportCells::selectsCells() const
{
    return m_parts.rowChoice.isByCells();
}

void ReportCells::setSelectsCells(bool on)
{
    m_parts.rowChoice.setByCells(on);
}

void ReportCells::settle()
{
    m_parts.rowChoice.settle();
}

} // namespace ORVTListview
