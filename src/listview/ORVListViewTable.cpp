// The members of the point table.

#include <ORVTListview/ORVListView.h>

#include "base/EventGuard.h"
#include "listview/ListViewFaces.h"
#include <ORVTListview/ListItems.h>

namespace ORVTListview {

qint16 ORVListView::NumberItems() const
{
    return d->table->numberItems();
}

void ORVListView::setNumberItems(qint16 Count)
{
    d->table->setNumberItems(Count);
    d->showAnew();
    raiseEvent(*this, &ORVListView::captionChanged);
}

bool ORVListView::IsHOASupported() const
{
    return d->table->isHOASupported();
}

void ORVListView::setIsHOASupported(bool Supported)
{
    d->table->setHOASupported(Supported);
}

void ORVListView::setIsWait(bool Wait)
{
    d->table->setWaiting(Wait);
}

ColumnHeaders *ORVListView::ColumnHerders() const
{
    return d->list->ColumnHeaders();
}

qint32 ORVListView::GetSubItemWidth(qint16 Index) const
{
    return d->list->GetSubItemWidth(Index);
}

void ORVListView::UpdateListViewWidth(QString &ErrMsg)
{
    d->layOut(); // a hidden control has not followed its size yet
    d->table->UpdateListViewWidth(ErrMsg);
}

void ORVListView::ChangeListviewNumber(qint16 New_Count)
{
    d->table->ChangeListviewNumber(New_Count);
}

void ORVListView::SetImage(bool Busy)
{
    d->table->SetImage(Busy);
}

ListItems *ORVListView::ListItems() const
{
    d->editor->words().popup().catchUp();
    return d->list->ListItems();
}

ListItem *ORVListView::Add(qint32 Index, const QString &Key, const QString &Text)
{
    return d->list->Add(Index, Key, Text);
}

void ORVListView::UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex)
{
    d->table->UpdateSubItems(Value, TagValue, SubIndex);
}

ListItem *ORVListView::FindItem(const QString &sz, qint32 Where, qint32 Index,
                                qint32 fPartial) const
{
    d->editor->words().popup().catchUp();
    return d->list->FindItem(sz, Where, Index, fPartial);
}

ListItem *ORVListView::GetFirstVisible() const
{
    return d->list->GetFirstVisible();
}

ListItem *ORVListView::HitTest(float X, float Y) const
{
    return d->list->HitTest(X, Y);
}

ListItem *ORVListView::SelectedItem() const
{
    return d->list->SelectedItem();
}

void ORVListView::setSelectedItem(ListItem *Item)
{
    d->list->setSelectedItem(Item);
}

void ORVListView::StartLabelEdit()
{
    d->list->StartLabelEdit();
}

qint16 ORVListView::labelColumn() const
{
    return d->list->labelColumn();
}

void ORVListView::setLabelColumn(qint16 Index)
{
    d->list->setLabelColumn(Index);
}

void ORVListView::Refresh()
{
    d->list->Refresh();
}

void ORVListView::Drag(ActionIndex Action)
{
    d->list->Drag(Action);
}

void ORVListView::Clear()
{
    if (d->isCode())
        d->editor->text().Clear();
    else
        d->list->Clear();
}

ReportList *ORVListView::listView() const
{
    return d->list;
}

} // namespace ORVTListview
