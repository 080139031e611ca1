#include <ORVTListview/ListItem.h>

#include "widgets/list/ListKinds.h"
#include "widgets/view/Lookup.h"
#include "widgets/view/ViewElements.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

template class ViewElement<ListItem, ReportListParts, ReportRow>;

ListItem::ListItem(ReportListParts &parts, ReportRow &row)
    : ViewElement(parts, row)
{
}

ReportRow &ListItem::heldWith(const char *member, qint32 subItem) const
{
    ReportRow &row = held(member);
    if (subItem < 1 || subItem >= m_parts->model.columns())
        throw Error(SubscriptOutOfRange, CalledMember{u"ListItem", member}.name(),
                    u"There is no sub-item %1"_s.arg(subItem));
    return row;
}

QString ListItem::Tag() const
{
    return held("Tag").content.tag;
}

void ListItem::setTag(const QString &Tag)
{
    held("setTag").content.tag = Tag;
}

QString ListItem::SubItem(qint32 Index) const
{
    return m_parts->model.cellText(heldWith("SubItem", Index), Index);
}

void ListItem::setSubItem(qint32 Index, const QString &Text)
{
    m_parts->model.setSubItem(heldWith("setSubItem", Index), Index, Text);
}

QString ListItem::SubItemTag(qint32 Index) const
{
    return heldWith("SubItemTag", Index).content.subItemTags.value(Index - 1);
}

void ListItem::setSubItemTag(qint32 Index, const QString &Tag)
{
    m_parts->model.setSubItemTag(heldWith("setSubItemTag", Index), Index, Tag);
}

QString ListItem::PictureKey() const
{
    return held("PictureKey").content.picture;
}

void ListItem::setPictureKey(const QString &Key)
{
    m_parts->model.setPicture(held("setPictureKey"), Key);
}

QColor ListItem::foreground() const
{
    return held("foreground").content.foreground;
}

void ListItem::setForeground(const QColor &colour)
{
    m_parts->model.setForeground(held("setForeground"), colour);
}

bool ListItem::Selected() const
{
    return m_parts->rowChoice.isSelected(held("Selected"));
}

void ListItem::setSelected(bool Selected)
{
    m_parts->rowChoice.setSelected(held("setSelected"), Selected);
}

bool ListItem::Checked() const
{
    return held("Checked").content.checked;
}

void ListItem::setChecked(bool Checked)
{
    m_parts->model.setChecked(held("setChecked"), Checked);
}

bool ListItem::Visible() const
{
    return !m_parts->view.isRowHidden(m_parts->model.positionOf(held("Visible")));
}

void ListItem::setVisible(bool Visible)
{
    m_parts->view.setRowHidden(m_parts->model.positionOf(held("setVisible")), !Visible);
}

void ListItem::EnsureVisible()
{
    m_parts->rowChoice.ensureVisible(held("EnsureVisible"));
}

} // namespace ORVTListview
