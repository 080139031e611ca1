#pragma once

#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/ListItem.h>

#include <memory>
#include <vector>

namespace ORVTListview {

// Makes the handles of a list's rows and columns when they are asked for. All of
// them are kept, those of removed rows too, since nobody can know which of them a
// host still holds: 40 bytes for each row that was ever asked for.
class ListHandles
{
public:
    explicit ListHandles(ReportListParts &parts);
    Q_DISABLE_COPY_MOVE(ListHandles) // handles are held by address

    ListItem *of(ReportRow &row);
    ColumnHeader *of(ReportColumn &column);

private:
    ReportListParts &m_parts;
    std::vector<std::unique_ptr<ListItem>> m_items;
    std::vector<std::unique_ptr<ColumnHeader>> m_headers;
};

} // namespace ORVTListview
