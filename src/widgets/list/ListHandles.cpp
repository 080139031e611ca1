#include "widgets/list/ListHandles.h"

#include "widgets/list/ReportRow.h"

namespace ORVTListview {

ListHandles::ListHandles(ReportListParts &parts)
    : m_parts(parts)
{
}

ListItem *ListHandles::of(ReportRow &row)
{
    if (!row.handle) {
        m_items.emplace_back(new ListItem(m_parts, row));
        row.handle = m_items.back().get();
    }
    return row.handle;
}

ColumnHeader *ListHandles::of(ReportColumn &column)
{
    if (!column.handle) {
        m_headers.emplace_back(new ColumnHeader(m_parts, column));
        column.handle = m_headers.back().get();
    }
    return column.handle;
}

} // namespace ORVTListview
