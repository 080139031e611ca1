#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/ViewCollection.h>

#include <QtCore/QString>

namespace ORVTListview {

// The rows of a ReportList: see ViewCollection.
class ORVT_EXPORT ListItems : public ViewCollection<ListItem, ReportListParts>
{
public:
    explicit ListItems(ReportListParts &parts);

    // Puts a row before the one at Index, from 1 to Count() + 1; 0 is the end. A
    // key in use raises Error (InvalidCall) and adds nothing.
    ListItem *Add(qint32 Index = 0, const QString &Key = QString(),
                  const QString &Text = QString());
};

} // namespace ORVTListview
