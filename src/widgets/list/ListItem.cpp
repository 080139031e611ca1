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
    auto &row = heldWith("SubItem", Index);
    return m_parts->model.cellText(row, Index);
}

void ListItem::setSubItem(qint32 Index, const QString &Text)
{
    auto &row = heldWith("setSubItem", Index);
    m_parts->model.setSubItem(row, Index, Text);
}

QString ListItem::SubItemTag(qint32 Index) const
{
    return heldWith("SubItemTag", Index).content.subItemTags.value(Index - 1);
}

void ListItem::setSubItemTag(qint32 Index, const QString &Tag)
{
    auto &row = heldWith("setSubItemTag", Index);
    m_parts->model.setSubItemTag(row, Index, Tag);
}

QString ListItem::PictureKey() const
{
    return held("PictureKey").content.picture;
}

void ListItem::setPictureKey(const QString &Key)
{
    partsFor("setPictureKey").model.setPicture(*m_held, Key);
}

QColor ListItem::foreground() const
{
    return held("foreground").content.foreground;
}

void ListItem::setForeground(const QColor &colour)
{
    partsFor("setForeground").model.setForeground(*m_held, colour);
}

bool ListItem::Selected() const
{
    return partsFor("Selected").rowChoice.isSelected(*m_held);
}

void ListItem::setSelected(bool Selected)
{
    partsFor("setSelected").rowChoice.setSelected(*m_held, Selected);
}

bool ListItem::Checked() const
{
    return held("Checked").content.checked;
}

void ListItem::setChecked(bool Checked)
{
    partsFor("setChecked").model.setChecked(*m_held, Checked);
}

bool ListItem::Visible() const
{
    return !partsFor("Visible").isHidden(*m_held);
}

void ListItem::setVisible(bool Visible)
{
    partsFor("setVisible").setHidden(*m_held, !Visible);
}

void ListItem::EnsureVisible()
{
    partsFor("EnsureVisible").rowChoice.ensureVisible(*m_held);
}

} // namespace ORVTListview
