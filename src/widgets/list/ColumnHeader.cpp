#include <ORVTListview/ColumnHeader.h>

#include "widgets/list/ReportListParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ColumnHeader::ColumnHeader(ReportListParts &parts, ReportColumn &column)
    : m_parts(&parts)
    , m_column(&column)
{
}

ColumnHeader::~ColumnHeader() = default;

ReportColumn &ColumnHeader::column(const char *member) const
{
    if (!m_column)
        throw Error(ObjectNotSet, u"ColumnHeader."_s + QLatin1StringView(member),
                    u"The column has been removed"_s);
    return *m_column;
}

qint32 ColumnHeader::Index() const
{
    return m_parts->model.positionOf(column("Index")) + 1;
}

QString ColumnHeader::Key() const
{
    return column("Key").key;
}

void ColumnHeader::setKey(const QString &Key)
{
    ReportColumn &held = column("setKey");
    const ReportColumn *user = m_parts->model.findColumn(Key);
    Lookup::checkKeyIsFree(u"ColumnHeader.setKey"_s, Key, user && user != &held);
    held.key = Key;
}

QString ColumnHeader::Text() const
{
    return column("Text").text;
}

void ColumnHeader::setText(const QString &Text)
{
    m_parts->model.setColumnText(column("setText"), Text);
}

float ColumnHeader::Width() const
{
    return static_cast<float>(m_parts->widths.width(m_parts->model.positionOf(column("Width"))));
}

void ColumnHeader::setWidth(float Width)
{
    const int position = m_parts->model.positionOf(column("setWidth"));
    if (!(Width >= 0))
        throw Error(InvalidCall, u"ColumnHeader.setWidth"_s, u"A width cannot be negative"_s);
    m_parts->widths.setWidth(position, static_cast<double>(Width));
}

Qt::Alignment ColumnHeader::alignment() const
{
    return column("alignment").alignment;
}

void ColumnHeader::setAlignment(Qt::Alignment alignment)
{
    m_parts->model.setColumnAlignment(column("setAlignment"), alignment & Qt::AlignHorizontal_Mask);
}

bool ColumnHeader::Visible() const
{
    return !m_parts->view.isColumnHidden(m_parts->model.positionOf(column("Visible")));
}

void ColumnHeader::setVisible(bool Visible)
{
    m_parts->view.setColumnHidden(m_parts->model.positionOf(column("setVisible")), !Visible);
}

} // namespace ORVTListview
