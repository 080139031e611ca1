#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/ViewElement.h>

#include <QtCore/Qt>

namespace ORVTListview {

// A column of a ReportList: see ViewElement. Its text stands in the header.
class ORVT_EXPORT ColumnHeader : public ViewElement<ColumnHeader, ReportListParts, ReportColumn>
{
public:
    // In twips. Kept as whole pixels, so what is read may differ from what was
    // set by half a pixel. setWidth raises Error (InvalidCall) for a negative
    // width. A last column that fitColumns has made to fill the rest of the list
    // counts the list's frame and scroll bar as its own until it is resized.
    float Width() const;
    void setWidth(float Width);

    // Left, right or centred, for the header and the cells.
    Qt::Alignment alignment() const;
    void setAlignment(Qt::Alignment alignment);

    // A hidden column keeps its index and width.
    bool Visible() const;
    void setVisible(bool Visible);

private:
    template <typename, typename>
    friend class HandleStore;

    ColumnHeader(ReportListParts &parts, ReportColumn &column);
};

} // namespace ORVTListview
