#include "widgets/list/ReportCells.h"

#include <ORVTListview/ListItem.h>

namespace ORVTListview {

namespace {

// A handle that a host gives is looked at as by the list's own members.
class GivenRow final : public ViewElement<ListItem, ReportListParts, ReportRow>
{
public:
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

QModelIndex ReportCells::placeOf(const ListItem *item, int column) const
{
    if (!item || !item->isAlive() || column < 0 || column >= m_parts.model.columns())
        return {};
    const int position = item->Index() - 1; // among its own list's rows
    if (position >= m_parts.model.rows())
        return {};
    ReportRow &row = m_parts.model.row(position);
    return m_parts.items.of(row, m_parts) == item ? m_parts.model.indexOf(row, column)
                                                  : QModelIndex();
}

void ReportCells::check(const ListItem *item, const QString &member) const
{
    GivenRow::heldOf(item, m_parts, member);
}

QString ReportCells::text(const ListItem &item, int column) const
{
    return column == 0 ? item.Text() : item.SubItem(column);
}

void ReportCells::setText(ListItem &item, int column, const QString &text)
{
    if (column == 0)
        item.setText(text);
    else
        item.setSubItem(column, text);
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
