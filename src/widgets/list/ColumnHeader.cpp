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
    return static_cast<float>(partsFor("Width").widths.width(m_parts->model.positionOf(*m_held)));
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
    partsFor("setAlignment")
        .model.setColumnAlignment(*m_held, alignment & Qt::AlignHorizontal_Mask);
}

bool ColumnHeader::Visible() const
{
    return !partsFor("Visible").view.isColumnHidden(m_parts->model.positionOf(*m_held));
}

void ColumnHeader::setVisible(bool Visible)
{
    partsFor("setVisible").view.setColumnHidden(m_parts->model.positionOf(*m_held), !Visible);
}

} // namespace ORVTListview
