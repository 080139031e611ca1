#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/ViewCollection.h>

#include <QtCore/QString>
#include <QtCore/Qt>

namespace ORVTListview {

// The columns of a ReportList: see ViewCollection.
//
// Sub-items belong to positions, not to headers: adding, removing and clearing
// headers leaves every row as it is, and shows as many of its sub-items as there
// are columns.
class ORVT_EXPORT ColumnHeaders : public ViewCollection<ColumnHeader, ReportListParts>
{
public:
    explicit ColumnHeaders(ReportListParts &parts);

    // What a column gets when it is added without a width, in twips.
    static constexpr float defaultWidth = 1440;

    // Puts a column before the one at Index, from 1 to Count() + 1; 0 is the end.
    // A key in use or a negative width raises Error (InvalidCall) and adds nothing.
    ColumnHeader *Add(qint32 Index = 0, const QString &Key = QString(),
                      const QString &Text = QString(), float Width = defaultWidth,
                      Qt::Alignment Alignment = Qt::AlignLeft);
};

} // namespace ORVTListview
