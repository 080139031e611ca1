#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>
#include <QtCore/Qt>

namespace ORVTListview {

struct ReportColumn;
struct ReportListParts;

// A column of a ReportList, made by the list on request and owned by it. Its
// address stays good until the list is destroyed. Once its column has been
// removed, every member but isAlive() raises Error (ObjectNotSet).
class ORVT_EXPORT ColumnHeader
{
public:
    ~ColumnHeader();
    Q_DISABLE_COPY_MOVE(ColumnHeader) // its address is what hosts hold

    bool isAlive() const { return m_column != nullptr; }

    // From 1 to the number of columns.
    qint32 Index() const;

    // Empty, or unique among the columns: setKey raises Error (InvalidCall) for a
    // key in use. Case-sensitive.
    QString Key() const;
    void setKey(const QString &Key);

    QString Text() const;
    void setText(const QString &Text);

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
    template <typename Handle, typename Held>
    friend class HandleStore;

    ColumnHeader(ReportListParts &parts, ReportColumn &column);

    void letGo() { m_column = nullptr; }
    ReportColumn &column(const char *member) const;

    ReportListParts *m_parts;
    ReportColumn *m_column; // null once it is gone
};

} // namespace ORVTListview
