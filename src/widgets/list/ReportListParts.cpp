#include "widgets/list/ReportListParts.h"

namespace ORVTListview {

void ReportListParts::removeRow(int position)
{
    const StillView still(view);
    model.deleteRow(position);
}

void ReportListParts::clearRows()
{
    if (model.rows() > 0)
        model.setRows({});
}

void ReportListParts::removeColumn(int position)
{
    const StillView still(view);
    model.deleteColumn(position);
}

void ReportListParts::clearColumns()
{
    const StillView still(view);
    model.clearColumns();
}

} // namespace ORVTListview
