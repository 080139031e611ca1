#pragma once

#include <ORVTListview/Export.h>

#include <QtCore/QString>
#include <QtGui/QColor>

namespace ORVTListview {

struct ReportListParts;
struct ReportRow;

// A row of a ReportList, made by the list on request and owned by it. The same
// row always has the same ListItem; its address stays good until the list is
// destroyed. Once its row has been removed, every member but isAlive() raises
// Error (ObjectNotSet): a removed row never comes back, not even one with its key.
//
// SubItem and SubItemTag count from 1, the column after the first, to the number
// of columns less 1, and raise Error (SubscriptOutOfRange) outside it. None of the
// setters raises an event.
class ORVT_EXPORT ListItem
{
public:
    ~ListItem();
    Q_DISABLE_COPY_MOVE(ListItem) // its address is what hosts hold

    bool isAlive() const { return m_row != nullptr; }

    // From 1 to the number of rows; changes when rows above it come or go.
    qint32 Index() const;

    // Empty, or unique in the list: setKey raises Error (InvalidCall) for a key
    // in use. Case-sensitive.
    QString Key() const;
    void setKey(const QString &Key);

    QString Text() const;
    void setText(const QString &Text);

    QString Tag() const;
    void setTag(const QString &Tag);

    QString SubItem(qint32 Index) const;
    void setSubItem(qint32 Index, const QString &Text);

    QString SubItemTag(qint32 Index) const;
    void setSubItemTag(qint32 Index, const QString &Tag);

    // The list's picture provider turns the key into an icon. Empty: none.
    QString PictureKey() const;
    void setPictureKey(const QString &Key);

    // Invalid: the palette's text colour. A selected row shows the palette's.
    QColor foreground() const;
    void setForeground(const QColor &colour);

    // Selecting a row of a list without MultiSelect deselects the others.
    bool Selected() const;
    void setSelected(bool Selected);

    bool Checked() const;
    void setChecked(bool Checked);

    // A hidden row keeps its index.
    bool Visible() const;
    void setVisible(bool Visible);

    // Scrolls up or down as far as it takes. On a hidden list, once it is shown.
    void EnsureVisible();

private:
    friend class ReportList;
    template <typename Handle, typename Held>
    friend class HandleStore;

    ListItem(ReportListParts &parts, ReportRow &row);

    void letGo() { m_row = nullptr; }
    ReportRow &row(const char *member) const;
    void checkSubItem(const char *member, qint32 index) const;

    ReportListParts *m_parts;
    ReportRow *m_row; // null once it is gone
};

} // namespace ORVTListview
