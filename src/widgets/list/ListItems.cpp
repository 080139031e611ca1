#include <ORVTListview/ListItems.h>

#include "widgets/list/AddedRows.h"
#include "widgets/list/ListKinds.h"
#include "widgets/view/ViewCollections.h"
#include <ORVTListview/ListItem.h>

#include <memory>
#include <utility>

namespace ORVTListview {

template class ViewCollection<ListItem, ReportListParts>;

ListItems::ListItems(ReportListParts &parts)
    : ViewCollection(parts)
{
}

ListItem *ListItems::Add(qint32 Index, const QString &Key, const QString &Text)
{
    constexpr CalledMember member{u"ListItems", "Add"};
    const int position = Lookup::newPosition(member, u"row", Index, Count());
    Lookup::checkKeyIsFree(member, Key, m_parts.model.find(Key));
    RowContent content;
    content.key = Key;
    content.text = Text;
    ReportModel::Rows rows;
    rows.push_back(std::make_unique<ReportRow>(std::move(content)));
    return addRows(m_parts, position, std::move(rows)).constFirst();
}

} // namespace ORVTListview
