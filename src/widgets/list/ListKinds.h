#pragma once

#include "widgets/list/ReportListParts.h"
#include "widgets/view/ViewKind.h"

namespace ORVTListview {

template <>
inline constexpr ViewKind<ListItem, ReportListParts, ReportModel, ReportRow> viewKind<ListItem>{
    u"ListItem",
    u"ListItems",
    u"row",
    u"list",
    &ReportListParts::items,
    &ReportModel::rows,
    &ReportModel::row,
    &ReportModel::find,
    &ReportListParts::removeRow,
    &ReportListParts::clearRows};

template <>
inline constexpr ViewKind<ColumnHeader, ReportListParts, ReportModel, ReportColumn>
    viewKind<ColumnHeader>{u"ColumnHeader",
                           u"ColumnHeaders",
                           u"column",
                           u"list",
                           &ReportListParts::headers,
                           &ReportModel::columns,
                           &ReportModel::column,
                           &ReportModel::findColumn,
                           &ReportListParts::removeColumn,
                           &ReportListParts::clearColumns};

} // namespace ORVTListview
