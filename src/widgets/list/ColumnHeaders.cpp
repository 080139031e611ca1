#include <ORVTListview/ColumnHeaders.h>

#include "widgets/list/ListKinds.h"
#include "widgets/view/ViewCollections.h"
#include <ORVTListview/ColumnHeader.h>
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

template class ViewCollection<ColumnHeader, ReportListParts>;

ColumnHeaders::ColumnHeaders(ReportListParts &parts)
    : ViewCollection(parts)
{
}

ColumnHeader *ColumnHeaders::Add(qint32 Index, const QString &Key, const QString &Text, float Width,
                                 Qt::Alignment Alignment)
{
    constexpr CalledMember member{u"ColumnHeaders", "Add"};
    const int position = Lookup::newPosition(member, u"column", Index, Count());
    if (!(Width >= 0))
        throw Error(InvalidCall, member.name(), u"A width cannot be negative"_s);
    Lookup::checkKeyIsFree(member, Key, m_parts.model.findColumn(Key));
    ReportColumn &column =
        m_parts.model.addColumn(position, Key, Text, Alignment & Qt::AlignHorizontal_Mask);
    m_parts.widths.setWidth(position, static_cast<double>(Width));
    return m_parts.headers.of(column, m_parts);
}

} // namespace ORVTListview
