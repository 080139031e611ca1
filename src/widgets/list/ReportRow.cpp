#include "widgets/list/ReportRow.h"

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>

#include <utility>

namespace ORVTListview {

ReportRow::ReportRow(RowContent held)
    : content(std::move(held))
{
}

ReportRow::~ReportRow()
{
    if (handle)
        handle->m_row = nullptr;
}

ReportColumn::ReportColumn(const QString &heldKey, const QString &heldText, Qt::Alignment held)
    : key(heldKey)
    , text(heldText)
    , alignment(held)
{
}

ReportColumn::~ReportColumn()
{
    if (handle)
        handle->m_column = nullptr;
}

} // namespace ORVTListview
