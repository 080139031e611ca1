#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>
#include <QtCore/Qt>

namespace ORVTListview {

class ColumnHeader;
struct ReportListParts;

// The columns of a ReportList. It lives as long as the list. Indexes count from
// 1; keys are case-sensitive. An index or key that is not there raises Error
// (SubscriptOutOfRange, InvalidCall).
//
// Sub-items belong to positions, not to headers: adding, removing and clearing
// headers leaves every row as it is, and shows as many of its sub-items as there
// are columns.
class ORVT_EXPORT ColumnHeaders
{
public:
    explicit ColumnHeaders(ReportListParts &parts);
    Q_DISABLE_COPY_MOVE(ColumnHeaders) // the list's own

    // What a column gets when it is added without a width, in twips.
    static constexpr float defaultWidth = 1440;

    qint32 Count() const;

    ColumnHeader *Item(qint32 Index) const;
    ColumnHeader *Item(const QString &Key) const;

    // Puts a column before the one at Index, from 1 to Count() + 1; 0 is the end.
    // A key in use or a negative width raises Error (InvalidCall) and adds nothing.
    ColumnHeader *Add(qint32 Index = 0, const QString &Key = QString(),
                      const QString &Text = QString(), float Width = defaultWidth,
                      Qt::Alignment Alignment = Qt::AlignLeft);

    void Remove(qint32 Index);
    void Remove(const QString &Key);
    void Clear();

private:
    ReportListParts &m_parts;
};

} // namespace ORVTListview
