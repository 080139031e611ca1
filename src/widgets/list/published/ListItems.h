#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>

namespace ORVTListview {

class ListItem;
struct ReportListParts;

// The rows of a ReportList. It lives as long as the list. Indexes count from 1;
// keys are case-sensitive. An index or key that is not there raises Error
// (SubscriptOutOfRange, InvalidCall).
class ORVT_EXPORT ListItems
{
public:
    explicit ListItems(ReportListParts &parts);
    Q_DISABLE_COPY_MOVE(ListItems) // the list's own

    qint32 Count() const;

    ListItem *Item(qint32 Index) const;
    ListItem *Item(const QString &Key) const;

    // Puts a row before the one at Index, from 1 to Count() + 1; 0 is the end. A
    // key in use raises Error (InvalidCall) and adds nothing.
    ListItem *Add(qint32 Index = 0, const QString &Key = QString(),
                  const QString &Text = QString());

    void Remove(qint32 Index);
    void Remove(const QString &Key);
    void Clear();

private:
    ReportListParts &m_parts;
};

} // namespace ORVTListview
