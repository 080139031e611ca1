#include "widgets/list/ReportRow.h"

#include "widgets/view/HandleStore.h"

#include <utility>

namespace ORVTListview {

ReportRow::ReportRow(RowContent held)
    : content(std::move(held))
{
}

ReportRow::~ReportRow()
{
    if (handle)
        handle->letGo();
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
        handle->letGo();
}

} // namespace ORVTListview
