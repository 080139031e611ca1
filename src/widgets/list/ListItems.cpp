#include <ORVTListview/ListItems.h>

#include "widgets/list/ReportListParts.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ListItem.h>

#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

void checkIndex(const QString &member, qint32 index, qint32 count)
{
    if (index < 1 || index > count)
        throw Error(SubscriptOutOfRange, member, u"There is no row %1"_s.arg(index));
}

ReportRow &rowOfKey(const ReportModel &model, const QString &member, const QString &key)
{
    ReportRow *row = model.find(key);
    if (!row)
        throw Error(InvalidCall, member, u"There is no row with the key \"%1\""_s.arg(key));
    return *row;
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
    checkIndex(u"ListItems.Item"_s, Index, Count());
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
        checkIndex(member, Index, Count() + 1);
    if (m_parts.model.find(Key))
        throw Error(InvalidCall, member, u"The key \"%1\" is in use already"_s.arg(Key));
    RowContent content;
    content.key = Key;
    content.text = Text;
    const int position = Index == 0 ? Count() : Index - 1;
    return m_parts.items.of(m_parts.model.addRow(position, std::move(content)), m_parts);
}

void ListItems::Remove(qint32 Index)
{
    checkIndex(u"ListItems.Remove"_s, Index, Count());
    m_parts.model.deleteRow(Index - 1);
}

void ListItems::Remove(const QString &Key)
{
    const ReportRow &row = rowOfKey(m_parts.model, u"ListItems.Remove"_s, Key);
    m_parts.model.deleteRow(m_parts.model.positionOf(row));
}

void ListItems::Clear()
{
    if (Count() > 0)
        m_parts.model.setRows({});
}

} // namespace ORVTListview
