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
    auto &column = held("Width");
    return static_cast<float>(m_parts->widths.width(m_parts->model.positionOf(column)));
}

void ColumnHeader::setWidth(float Width)
{
    auto &column = held("setWidth");
    const int position = m_parts->model.positionOf(column);
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
    auto &column = held("setAlignment");
    m_parts->model.setColumnAlignment(column, alignment & Qt::AlignHorizontal_Mask);
}

bool ColumnHeader::Visible() const
{
    auto &column = held("Visible");
    return !m_parts->view.isColumnHidden(m_parts->model.positionOf(column));
}

void ColumnHeader::setVisible(bool Visible)
{
    auto &column = held("setVisible");
    m_parts->view.setColumnHidden(m_parts->model.positionOf(column), !Visible);
}

} // namespace ORVTListview
