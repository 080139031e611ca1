#include <ORVTListview/ListItems.h>

#include "widgets/list/ReportListParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/ListItem.h>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

const QString kind = u"row"_s;

ReportRow &rowOfKey(const ReportModel &model, const QString &member, const QString &key)
{
    return Lookup::required(model.find(key), member, kind, key);
}

} // namespace

ListItems::ListItems(ReportListParts &parts)
    : m_parts(parts)
{
}

qint32 ListItems::Count() const
{
    return m_parts.model.rows();
}

ListItem *ListItems::Item(qint32 Index) const
{
    Lookup::checkIndex(u"ListItems.Item"_s, kind, Index, Count());
    return m_parts.items.of(m_parts.model.row(Index - 1), m_parts);
}

ListItem *ListItems::Item(const QString &Key) const
{
    return m_parts.items.of(rowOfKey(m_parts.model, u"ListItems.Item"_s, Key), m_parts);
}

ListItem *ListItems::Add(qint32 Index, const QString &Key, const QString &Text)
{
    const QString member = u"ListItems.Add"_s;
    if (Index != 0)
        Lookup::checkIndex(member, kind, Index, Count() + 1);
    Lookup::checkKeyIsFree(member, Key, m_parts.model.find(Key));
    RowContent content;
    content.key = Key;
    content.text = Text;
    const int position = Index == 0 ? Count() : Index - 1;
    return m_parts.items.of(m_parts.model.addRow(position, std::move(content)), m_parts);
}

void ListItems::Remove(qint32 Index)
{
    Lookup::checkIndex(u"ListItems.Remove"_s, kind, Index, Count());
    const StillView still(m_parts.view);
    m_parts.model.deleteRow(Index - 1);
}

void ListItems::Remove(const QString &Key)
{
    const ReportRow &row = rowOfKey(m_parts.model, u"ListItems.Remove"_s, Key);
    const StillView still(m_parts.view);
    m_parts.model.deleteRow(m_parts.model.positionOf(row));
}

void ListItems::Clear()
{
    if (Count() > 0)
        m_parts.model.setRows({});
}

} // namespace ORVTListview
