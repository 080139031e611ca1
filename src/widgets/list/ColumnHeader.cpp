#include <ORVTListview/ColumnHeader.h>

#include "widgets/list/ListKinds.h"
#include "widgets/view/ViewElements.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

template class ViewElement<ColumnHeader, ReportListParts, ReportColumn>;

ColumnHeader::ColumnHeader(ReportListParts &parts, ReportColumn &column)
    : ViewElement(parts, column)
{
}

float ColumnHeader::Width() const
{
    return static_cast<float>(m_parts->widths.width(m_parts->model.positionOf(held("Width"))));
}

void ColumnHeader::setWidth(float Width)
{
    const int position = m_parts->model.positionOf(held("setWidth"));
    if (!(Width >= 0))
        throw Error(InvalidCall, u"ColumnHeader.setWidth"_s, u"A width cannot be negative"_s);
    m_parts->widths.setWidth(position, static_cast<double>(Width));
}

Qt::Alignment ColumnHeader::alignment() const
{
    return held("alignment").alignment;
}

void ColumnHeader::setAlignment(Qt::Alignment alignment)
{
    m_parts->model.setColumnAlignment(held("setAlignment"), alignment & Qt::AlignHorizontal_Mask);
}

bool ColumnHeader::Visible() const
{
    return !m_parts->view.isColumnHidden(m_parts->model.positionOf(held("Visible")));
}

void ColumnHeader::setVisible(bool Visible)
{
    m_parts->view.setColumnHidden(m_parts->model.positionOf(held("setVisible")), !Visible);
}

} // namespace ORVTListview
