#include <ORVTListview/ColumnHeaders.h>

#include "widgets/list/ReportListParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

const QString kind = u"column"_s;

ReportColumn &columnOfKey(const ReportModel &model, const QString &member, const QString &key)
{
    return Lookup::required(model.findColumn(key), member, kind, key);
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
    Lookup::checkIndex(u"ColumnHeaders.Item"_s, kind, Index, Count());
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
        Lookup::checkIndex(member, kind, Index, Count() + 1);
    if (!(Width >= 0))
        throw Error(InvalidCall, member, u"A width cannot be negative"_s);
    Lookup::checkKeyIsFree(member, Key, m_parts.model.findColumn(Key));
    const int position = Index == 0 ? Count() : Index - 1;
    ReportColumn &column =
        m_parts.model.addColumn(position, Key, Text, Alignment & Qt::AlignHorizontal_Mask);
    m_parts.widths.setWidth(position, static_cast<double>(Width));
    return m_parts.headers.of(column, m_parts);
}

void ColumnHeaders::Remove(qint32 Index)
{
    Lookup::checkIndex(u"ColumnHeaders.Remove"_s, kind, Index, Count());
    const StillView still(m_parts.view);
    m_parts.model.deleteColumn(Index - 1);
}

void ColumnHeaders::Remove(const QString &Key)
{
    const ReportColumn &column = columnOfKey(m_parts.model, u"ColumnHeaders.Remove"_s, Key);
    const StillView still(m_parts.view);
    m_parts.model.deleteColumn(m_parts.model.positionOf(column));
}

void ColumnHeaders::Clear()
{
    const StillView still(m_parts.view);
    m_parts.model.clearColumns();
}

} // namespace ORVTListview
