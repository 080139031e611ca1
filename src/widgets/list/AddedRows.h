#pragma once

#include "widgets/list/ReportModel.h"

#include <QtCore/QList>

namespace ORVTListview {

class ListItem;
struct ReportListParts;

// Puts rows before that position. Their handles, which know when what is told of it takes
// rows away again. Afterwards the list may have ended.
QList<ListItem *> addRows(ReportListParts &parts, int position, ReportModel::Rows rows);

} // namespace ORVTListview
