#include <ORVTListview/ReportList.h>

#include "base/EventGuard.h"
#include "widgets/input/RelayedEvents.h"
#include "widgets/list/FreshRows.h"
#include "widgets/list/ReportHeader.h"
#include "widgets/list/ReportListBody.h"
#include "widgets/list/RowCopy.h"
#include "widgets/list/RowSearch.h"
#include "widgets/look/Twips.h"
#include "widgets/view/OpenView.h"
#include <ORVTListview/Error.h>

#include <QtCore/QMimeData>
#include <QtGui/QPaintEvent>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ORVTListview {

using namespace Qt::StringLiterals;

ReportList::ReportList(QWidget *parent)
    : QTableView(parent)
    , d(std::make_unique<ReportListBody>(*this))
{
    setHorizontalHeader(new ReportHeader(this, d->kept));
    QTableView::setModel(&d->model);
    const std::unique_ptr<QItemSelectionModel> itsOwn(selectionModel());
    setSelectionModel(&d->rowChoice.selection());
    d->makeGrid();
    setUpLook();
    setUpConnections();
}

ReportList::~ReportList()
{
    // While the parts that the view calls are there.
    QTableView::setModel(nullptr);
    d->surface.letGo();
}

void ReportList::setUpLook()
{
    setItemDelegate(&d->delegate);
    setSelectionBehavior(SelectRows);
    QTableView::setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers); // label editing is announced first
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    viewport()->setMouseTracking(true);
    horizontalHeader()->setDefaultSectionSize(Twips::toPixelsX(ColumnHeaders::defaultWidth, *this));
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    updateRowHeight();
}

void ReportList::setUpConnections()
{
    const auto *header = static_cast<ReportHeader *>(horizontalHeader());
    connect(header, &QHeaderView::sectionClicked, this, [this](int column) {
        d->clickedColumn =
            d->headers.of(d->model.column(column), static_cast<ReportListParts &>(*d));
    });
    connect(header, &ReportHeader::released, this, [this](Qt::KeyboardModifiers modifiers) {
        const QPointer<ReportList> self(this);
        if (d->clickedColumn && d->clickedColumn->isAlive())
            d->gridParts().headerClicked(d->clickedColumn->Index() - 1, modifiers);
        if (self)
            raiseColumnClick();
    });
    // The toolkit's own looks at the rows near by only, with other margins.
    disconnect(header, &QHeaderView::sectionHandleDoubleClicked, this, nullptr);
    connect(header, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int column) { d->widths.fit(column); });
    connect(header, &QHeaderView::sectionResized, this,
            [this](int column) { d->widths.columnResized(column); });
    connect(header, &QHeaderView::sectionCountChanged, this,
            [this] { d->widths.columnsChanged(); });
    connect(header, &ReportHeader::textReplaced, this, [this, header](int column) {
        d->widths.headerReplaced(column, header->isElided(column));
    });
    connect(&d->model, &ReportModel::modelAboutToBeReset, this, [this] {
        d->clicks.slow().stop();
        OpenView::dropEditor(*this);
    });
    connect(&d->model, &ReportModel::modelReset, this, [this] { beginAfresh(*this); });
    connect(&d->model, &ReportModel::columnsRemoved, this, [this] {
        if (d->model.columns() == 0)
            horizontalScrollBar()->setValue(0); // those that follow are others
    });
    connect(&d->model, &ReportModel::checkedByUser, this,
            [this](int position) { d->checkedItem = itemOf(position); });
    connect(&d->delegate, &ReportDelegate::labelEntered, this,
            [this](const QModelIndex &label, const QString &text) {
                if (d->gridParts().edit.isOpenAt(label))
                    d->gridParts().edit.enterSoon(text);
                else
                    noteLabel(*itemOf(label), text);
            });
    d->gridParts().edit.setPick([this](const std::function<void()> &act) { pick(act); });
    d->gridParts().menu.setCopying({[this] { return d->copies; }, [this] { copySelection(); }});
    d->model.setEntry([this](const QModelIndex &cell, const QString &text) {
        return d->grid->enterText(itemOf(cell), static_cast<qint16>(cell.column()), text);
    });
    connect(&d->clicks.slow(), &SlowClick::clicked, this, &ReportList::StartLabelEdit);
    d->surface.drag().setContent([this](QMimeData &rows) {
        const QList<int> places = d->rowChoice.selectedPlaces();
        copyRows(*this, places, rows);
        addNames(*this, d->model, places, rows);
    });
    relayDrags(&d->surface.drag(), this);
}

// Where columns are that stay in sight.

QRect ReportList::visualRect(const QModelIndex &index) const
{
    const QRect place = QTableView::visualRect(index);
    return place.isEmpty() ? place : place.translated(d->kept.shift(index.column()), 0);
}

QModelIndex ReportList::indexAt(const QPoint &place) const
{
    return QTableView::indexAt(place - QPoint(d->kept.shiftAt(place.x()), 0));
}

// One that is always in sight is not scrolled to sideways.
void ReportList::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const bool isKept = d->kept.columns().contains(index.column());
    const int offset = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (isKept)
        horizontalScrollBar()->setValue(offset);
    else
        d->kept.uncover(index);
}

void ReportList::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (d->kept.isOn())
        d->kept.paint(event->region());
}

void ReportList::updateRowHeight()
{
    constexpr int room = 6;
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    verticalHeader()->setDefaultSectionSize(std::max(fontMetrics().height(), icon) + room);
}

ListItems *ReportList::ListItems() const
{
    return &d->listItems;
}

ColumnHeaders *ReportList::ColumnHeaders() const
{
    return &d->columnHeaders;
}

ListItem *ReportList::Add(qint32 Index, const QString &Key, const QString &Text)
{
    return d->listItems.Add(Index, Key, Text);
}

void ReportList::Clear()
{
    d->listItems.Clear();
}

void ReportList::setRows(QList<RowContent> rows)
{
    d->model.setRows(std::move(rows));
}

void ReportList::appendRows(QList<RowContent> rows)
{
    d->model.appendRows(std::move(rows));
}

void ReportList::UpdateSubItems(const QString &Value, const QString &TagValue, qint16 SubIndex)
{
    if (SubIndex < 1 || SubIndex >= d->model.columns())
        throw Error(SubscriptOutOfRange, u"ReportList.UpdateSubItems"_s,
                    u"There is no sub-item %1"_s.arg(SubIndex));
    d->model.setSubItemOfAll(SubIndex, Value, TagValue);
}

ListItem *ReportList::FindItem(const QString &sz, qint32 Where, qint32 Index, qint32 fPartial) const
{
    if (Where < WhereText || Where > WhereTag || fPartial < MatchWhole || fPartial > MatchBeginning)
        throw Error(InvalidCall, u"ReportList.FindItem"_s, u"There is no such way to search"_s);
    const RowSearch search{sz, static_cast<RowSearch::Field>(Where),
                           static_cast<RowSearch::Match>(fPartial)};
    const int found = search.find(d->model, std::max(Index, 1) - 1);
    return itemOf(found);
}

ListItem *ReportList::itemOf(ReportRow *row) const
{
    return row ? d->items.of(*row, static_cast<ReportListParts &>(*d)) : nullptr;
}

// Null for a negative one.
ListItem *ReportList::itemOf(int position) const
{
    return position < 0 ? nullptr : itemOf(&d->model.row(position));
}

ListItem *ReportList::itemOf(const QModelIndex &index) const
{
    return index.isValid() ? itemOf(&d->model.rowAt(index)) : nullptr;
}

ListItem *ReportList::GetFirstVisible() const
{
    OpenView::layOutItems(d->view);
    int top = rowAt(0);
    if (top < 0) // a list without height may stand behind its last row
        top = d->model.rowCount() - 1;
    while (top >= 0 && isRowHidden(top))
        --top;
    return top < 0 ? nullptr : itemOf(&d->model.rowAt(top));
}

ListItem *ReportList::HitTest(float X, float Y) const
{
    return itemOf(d->surface.indexAt(X, Y));
}

ListItem *ReportList::SelectedItem() const
{
    return itemOf(d->rowChoice.selected());
}

void ReportList::setSelectedItem(ListItem *Item)
{
    d->rowChoice.select(ListItem::heldOf(Item, *d, u"ReportList.setSelectedItem"_s));
}

void ReportList::goToRow(qint32 Index)
{
    if (Index < 0 || Index > d->model.rows())
        throw Error(SubscriptOutOfRange, u"ReportList.goToRow"_s,
                    u"There is no row %1"_s.arg(Index));
    d->rowChoice.select(Index == 0 ? nullptr : &d->model.row(Index - 1));
    if (Index != 0)
        d->rowChoice.ensureVisible(d->model.row(Index - 1));
}

bool ReportList::MultiSelect() const
{
    return d->rowChoice.isMultiple();
}

void ReportList::setMultiSelect(bool MultiSelect)
{
    if (MultiSelect == this->MultiSelect())
        return;
    d->rowChoice.setMultiple(MultiSelect);
    raiseEvent(*this, &ReportList::multiSelectChanged);
}

void ReportList::Refresh()
{
    viewport()->repaint();
}

void ReportList::Drag(qint32 Action)
{
    constexpr qint32 beginDrag = 1;
    constexpr qint32 cancelDrag = 2;
    if (Action == beginDrag)
        d->surface.drag().begin();
    else if (Action == cancelDrag)
        d->surface.drag().cancel();
}

void ReportList::fitColumns()
{
    d->widths.fit();
}

qint32 ReportList::GetSubItemWidth(qint16 Index) const
{
    if (Index < 0 || Index >= d->model.columns())
        return 0;
    return static_cast<qint32>(std::nearbyint(d->widths.width(Index)));
}

ListGrid *ReportList::grid() const
{
    return d->grid.get();
}

void ReportList::setPictureProvider(PictureProvider provider)
{
    d->model.setPictureProvider(std::move(provider));
}

bool ReportList::hasCheckBoxes() const
{
    return d->model.hasCheckBoxes();
}

void ReportList::setCheckBoxes(bool on)
{
    d->model.setCheckBoxes(on);
}

bool ReportList::copiesRows() const
{
    return d->copies;
}

void ReportList::setCopiesRows(bool on)
{
    d->copies = on;
}

bool ReportList::editsLabels() const
{
    return d->editsLabels;
}

void ReportList::setEditsLabels(bool on)
{
    d->editsLabels = on;
}

bool ReportList::isHeaderVisible() const
{
    return !horizontalHeader()->isHidden();
}

void ReportList::setHeaderVisible(bool visible)
{
    horizontalHeader()->setVisible(visible);
}

} // namespace ORVTListview
