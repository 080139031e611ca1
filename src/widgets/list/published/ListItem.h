#pragma once

#include <ORVTListview/Export.h>
#include <ORVTListview/ViewElement.h>

#include <QtCore/QString>
#include <QtGui/QColor>

namespace ORVTListview {

// A row of a ReportList: see ViewElement.
//
// SubItem and SubItemTag count from 1, the column after the first, to the number
// of columns less 1, and raise Error (SubscriptOutOfRange) outside it. None of the
// setters raises an event.
class ORVT_EXPORT ListItem : public ViewElement<ListItem, ReportListParts, ReportRow>
{
public:
    // A text of the host's own, which is not shown.
    QString Tag() const;
    void setTag(const QString &Tag);

    // The text in a column.
    QString SubItem(qint32 Index) const;
    void setSubItem(qint32 Index, const QString &Text);

    // A text of the host's own for a column, which is not shown.
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

    // Seen where the list shows check boxes.
    bool Checked() const;
    void setChecked(bool Checked);

    // A hidden row keeps its index.
    bool Visible() const;
    void setVisible(bool Visible);

    // Scrolls up or down as far as it takes. On a hidden list, once it is shown.
    void EnsureVisible();

private:
    friend class ReportList;
    template <typename, typename>
    friend class HandleStore;

    ListItem(ReportListParts &parts, ReportRow &row);

    ReportRow &heldWith(const char *member, qint32 subItem) const;
};

} // namespace ORVTListview
