#include "widgets/list/AddedRows.h"

#include "widgets/list/ReportListParts.h"
#include <ORVTListview/ListItem.h>

#include <memory>
#include <utility>

namespace ORVTListview {

QList<ListItem *> addRows(ReportListParts &parts, int position, ReportModel::Rows rows)
{
    QList<ListItem *> added;
    for (const std::unique_ptr<ReportRow> &row : rows)
        added.append(parts.items.of(*row, parts));
    parts.model.addRows(position, std::move(rows));
    return added;
}

} // namespace ORVTListview
