#include <ORVTListview/ListItem.h>

#include "widgets/list/ReportListParts.h"
#include "widgets/view/Lookup.h"
#include <ORVTListview/Error.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ListItem::ListItem(ReportListParts &parts, ReportRow &row)
    : m_parts(&parts)
    , m_row(&row)
{
}

ListItem::~ListItem() = default;

ReportRow &ListItem::row(const char *member) const
{
    if (!m_row)
        throw Error(ObjectNotSet, u"ListItem."_s + QLatin1StringView(member),
                    u"The row has been removed"_s);
    return *m_row;
}

void ListItem::checkSubItem(const char *member, qint32 index) const
{
    if (index < 1 || index >= m_parts->model.columns())
        throw Error(SubscriptOutOfRange, u"ListItem."_s + QLatin1StringView(member),
                    u"There is no sub-item %1"_s.arg(index));
}

qint32 ListItem::Index() const
{
    return m_parts->model.positionOf(row("Index")) + 1;
}

QString ListItem::Key() const
{
    return row("Key").content.key;
}

void ListItem::setKey(const QString &Key)
{
    ReportRow &held = row("setKey");
    const ReportRow *user = m_parts->model.find(Key);
    Lookup::checkKeyIsFree(u"ListItem.setKey"_s, Key, user && user != &held);
    m_parts->model.setKey(held, Key);
}

QString ListItem::Text() const
{
    return row("Text").content.text;
}

void ListItem::setText(const QString &Text)
{
    m_parts->model.setText(row("setText"), Text);
}

QString ListItem::Tag() const
{
    return row("Tag").content.tag;
}

void ListItem::setTag(const QString &Tag)
{
    row("setTag").content.tag = Tag;
}

QString ListItem::SubItem(qint32 Index) const
{
    const ReportRow &held = row("SubItem");
    checkSubItem("SubItem", Index);
    return m_parts->model.cellText(held, Index);
}

void ListItem::setSubItem(qint32 Index, const QString &Text)
{
    ReportRow &held = row("setSubItem");
    checkSubItem("setSubItem", Index);
    m_parts->model.setSubItem(held, Index, Text);
}

QString ListItem::SubItemTag(qint32 Index) const
{
    const ReportRow &held = row("SubItemTag");
    checkSubItem("SubItemTag", Index);
    return held.content.subItemTags.value(Index - 1);
}

void ListItem::setSubItemTag(qint32 Index, const QString &Tag)
{
    ReportRow &held = row("setSubItemTag");
    checkSubItem("setSubItemTag", Index);
    m_parts->model.setSubItemTag(held, Index, Tag);
}

QString ListItem::PictureKey() const
{
    return row("PictureKey").content.picture;
}

void ListItem::setPictureKey(const QString &Key)
{
    m_parts->model.setPicture(row("setPictureKey"), Key);
}

QColor ListItem::foreground() const
{
    return row("foreground").content.foreground;
}

void ListItem::setForeground(const QColor &colour)
{
    m_parts->model.setForeground(row("setForeground"), colour);
}

bool ListItem::Selected() const
{
    return m_parts->rowChoice.isSelected(row("Selected"));
}

void ListItem::setSelected(bool Selected)
{
    m_parts->rowChoice.setSelected(row("setSelected"), Selected);
}

bool ListItem::Checked() const
{
    return row("Checked").content.checked;
}

void ListItem::setChecked(bool Checked)
{
    m_parts->model.setChecked(row("setChecked"), Checked);
}

bool ListItem::Visible() const
{
    return !m_parts->view.isRowHidden(m_parts->model.positionOf(row("Visible")));
}

void ListItem::setVisible(bool Visible)
{
    m_parts->view.setRowHidden(m_parts->model.positionOf(row("setVisible")), !Visible);
}

void ListItem::EnsureVisible()
{
    m_parts->rowChoice.ensureVisible(row("EnsureVisible"));
}

} // namespace ORVTListview
