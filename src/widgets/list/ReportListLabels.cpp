// How the labels of a list are edited: the events around the view's own editor.

#include "base/EventGuard.h"
#include "widgets/list/ReportListBody.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QPointer>
#include <QtCore/QScopeGuard>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void ReportList::StartLabelEdit()
{
    ListItem *item = SelectedItem();
    if (!item || d->announcesEdit || state() == EditingState)
        return;
    qint16 cancel = 0;
    const QPointer<ReportList> self(this);
    {
        d->announcesEdit = true;
        const auto announced = qScopeGuard([self] {
            if (self)
                self->d->announcesEdit = false;
        });
        raiseEvent(*this, &ReportList::BeforeLabelEdit, cancel);
    }
    if (!self || cancel != 0 || !item->isAlive() || d->model.columns() == 0)
        return;
    item->EnsureVisible();
    const QModelIndex label = d->model.index(item->Index() - 1, labelColumn());
    scrollTo(label);
    edit(label, AllEditTriggers, nullptr);
}

// The editor is being closed while this is called; the event comes later.
void ReportList::noteLabel(int position, const QString &text)
{
    d->labelItem = itemOf(position);
    d->enteredLabel = text;
    QMetaObject::invokeMethod(this, &ReportList::finishLabelEdit, Qt::QueuedConnection);
}

void ReportList::finishLabelEdit()
{
    ListItem *item = d->labelItem;
    QString label = d->enteredLabel;
    qint16 cancel = 0;
    const bool isThere = raiseEvent(*this, &ReportList::AfterLabelEdit, cancel, label);
    if (isThere && cancel == 0 && item->isAlive())
        setLabel(*item, label);
}

void ReportList::setLabel(ListItem &item, const QString &label)
{
    if (labelColumn() == 0)
        item.setText(label);
    else
        item.setSubItem(labelColumn(), label);
}

qint16 ReportList::labelColumn() const
{
    return static_cast<qint16>(d->model.labelColumn());
}

void ReportList::setLabelColumn(qint16 Index)
{
    if (Index < 0)
        throw Error(SubscriptOutOfRange, u"setLabelColumn"_s, u"Columns count from 0"_s);
    d->model.setLabelColumn(Index);
}

void ReportList::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    // No going on to edit the next row, which would not be announced.
    const bool next = hint == QAbstractItemDelegate::EditNextItem ||
                      hint == QAbstractItemDelegate::EditPreviousItem;
    QTableView::closeEditor(editor, next ? QAbstractItemDelegate::NoHint : hint);
}

} // namespace ORVTListview
