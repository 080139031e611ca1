#include <ORVTListview/ColumnHeaders.h>

#include "widgets/list/ReportListParts.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

void checkIndex(const QString &member, qint32 index, qint32 count)
{
    if (index < 1 || index > count)
        throw Error(SubscriptOutOfRange, member, u"There is no column %1"_s.arg(index));
}

ReportColumn &columnOfKey(const ReportModel &model, const QString &member, const QString &key)
{
    ReportColumn *column = model.findColumn(key);
    if (!column)
        throw Error(InvalidCall, member, u"There is no column with the key \"%1\""_s.arg(key));
    return *column;
}

} // namespace

ColumnHeaders::ColumnHeaders(ReportListParts &parts)
    : m_parts(parts)
{
}

qint32 ColumnHeaders::Count() const
{
    return m_parts.model.columns();
}

ColumnHeader *ColumnHeaders::Item(qint32 Index) const
{
    checkIndex(u"ColumnHeaders.Item"_s, Index, Count());
    return m_parts.headers.of(m_parts.model.column(Index - 1), m_parts);
}

ColumnHeader *ColumnHeaders::Item(const QString &Key) const
{
    return m_parts.headers.of(columnOfKey(m_parts.model, u"ColumnHeaders.Item"_s, Key), m_parts);
}

ColumnHeader *ColumnHeaders::Add(qint32 Index, const QString &Key, const QString &Text, float Width,
                                 Qt::Alignment Alignment)
{
    const QString member = u"ColumnHeaders.Add"_s;
    if (Index != 0)
        checkIndex(member, Index, Count() + 1);
    if (!(Width >= 0))
        throw Error(InvalidCall, member, u"A width cannot be negative"_s);
    if (m_parts.model.findColumn(Key))
        throw Error(InvalidCall, member, u"The key \"%1\" is in use already"_s.arg(Key));
    const int position = Index == 0 ? Count() : Index - 1;
    ReportColumn &column =
        m_parts.model.addColumn(position, Key, Text, Alignment & Qt::AlignHorizontal_Mask);
    m_parts.widths.setWidth(position, static_cast<double>(Width));
    return m_parts.headers.of(column, m_parts);
}

void ColumnHeaders::Remove(qint32 Index)
{
    checkIndex(u"ColumnHeaders.Remove"_s, Index, Count());
    m_parts.model.deleteColumn(Index - 1);
}

void ColumnHeaders::Remove(const QString &Key)
{
    const ReportColumn &column = columnOfKey(m_parts.model, u"ColumnHeaders.Remove"_s, Key);
    m_parts.model.deleteColumn(m_parts.model.positionOf(column));
}

void ColumnHeaders::Clear()
{
    m_parts.model.clearColumns();
}

} // namespace ORVTListview
