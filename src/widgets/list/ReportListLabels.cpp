// How the labels of a list are edited: the events around the view's own editor.

#include "base/EventGuard.h"
#include "widgets/list/ReportListBody.h"
#include <ORVTListview/Error.h>
#include <ORVTListview/ReportList.h>

namespace ORVTListview {

using namespace Qt::StringLiterals;

void ReportList::StartLabelEdit()
{
    ListItem *item = SelectedItem();
    if (!item || !d->labels.announce(*this, &ReportList::BeforeLabelEdit) || !item->isAlive() ||
        d->model.columns() == 0)
        return;
    item->EnsureVisible();
    const QModelIndex label = d->cells.placeOf(item, labelColumn());
    if (!label.isValid()) // filtered out
        return;
    scrollTo(label);
    d->labels.open(label);
}

void ReportList::noteLabel(ListItem &item, const QString &text)
{
    d->labels.enterSoon(
        *this, &ReportList::AfterLabelEdit, text, [&item] { return item.isAlive(); },
        [this, &item](const QString &label) { setLabel(item, label); });
}

void ReportList::setLabel(ListItem &item, const QString &label)
{
    const int column = d->labels.enteredColumn();
    if (column == 0)
        item.setText(label);
    else if (column < d->model.columns())
        item.setSubItem(column, label);
}

qint16 ReportList::labelColumn() const
{
    return static_cast<qint16>(d->model.labelColumn());
}

void ReportList::setLabelColumn(qint16 Index)
{
    if (Index < 0)
        throw Error(SubscriptOutOfRange, u"setLabelColumn"_s, u"Columns count from 0"_s);
    const qint16 former = labelColumn();
    d->model.setLabelColumn(Index);
    if (labelColumn() != former)
        raiseEvent(*this, &ReportList::labelColumnChanged);
}

void ReportList::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    d->gridParts().edit.closed();
    QTableView::closeEditor(editor, LabelEdit::withoutNext(hint));
}

} // namespace ORVTListview
