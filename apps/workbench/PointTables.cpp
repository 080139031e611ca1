#include "PointTables.h"

#include "project/Project.h"
#include "project/ProjectColumns.h"
#include "project/controller/PointReading.h"
#include "shared/points/DisplayNames.h"
#include "shared/texts/TextTable.h"

#include <ORVTListview/ColumnHeaders.h>
#include <ORVTListview/ListGrid.h>
#include <ORVTListview/ListItem.h>
#include <ORVTListview/ListItems.h>
#include <ORVTListview/ORVListView.h>
#include <ORVTListview/ReportList.h>

#include <QtCore/QItemSelectionModel>
#include <QtCore/QPointer>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

PointTables::PointTables(ORVListView &list)
    : QObject(&list)
    , m_list(list)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(100ms);
    connect(&m_soon, &QTimer::timeout, this, &PointTables::fillValues);
    connect(&list, &ORVListView::BeforeLabelEdit, this, &PointTables::allowEditing);
    connect(&list, &ORVListView::AfterLabelEdit, this, &PointTables::takeName);
    connect(list.listView(), &ReportList::doubleClicked, this,
            [this](const QModelIndex &cell) { m_clicked = cell; });
    // When the button is let go, for the second press may begin a drag. Queued: the view is
    // still at work on it.
    connect(list.listView(), &ReportList::MouseUp, this, [this] {
        const QPersistentModelIndex cell = std::exchange(m_clicked, QPersistentModelIndex());
        if (cell.isValid())
            QMetaObject::invokeMethod(
                this, [this, cell] { editClicked(cell); }, Qt::QueuedConnection);
    });
}

void PointTables::setProject(Project *project)
{
    m_project = project;
    m_showsOverrides = project && project->controller().isHOASupported;
}

void PointTables::setShowsOverrides(bool on)
{
    m_showsOverrides = on;
    if (m_list.CurrentType() == dsOutput)
        show(dsOutput);
}

void PointTables::show(LwType type)
{
    m_list.setIsHOASupported(m_showsOverrides);
    m_list.setListviewType(type);
    showBusy();
    if (type == dsCode)
        return;
    const auto names = static_cast<qint16>(nameColumn(type) + 1);
    m_list.setLabelColumn(names);
    if (m_project)
        showRows();
    fitColumns();
}

void PointTables::showRows()
{
    const qsizetype points = m_project->rows(m_list.CurrentType()).size(); // 16 bits hold them all
    const qsizetype wanted = std::max<qsizetype>(points, m_list.NumberItems());
    if (wanted == m_list.ListItems()->Count()) {
        fill();
        return;
    }
    const qsizetype row = rowOf(m_list.SelectedItem()); // the rows are made anew
    m_list.ChangeListviewNumber(static_cast<qint16>(wanted));
    fill();
    if (row >= 0)
        showRow(std::min(row, wanted - 1));
}

void PointTables::fill()
{
    const qsizetype points = m_project->rows(m_list.CurrentType()).size();
    QSet<qint16> grown;
    for (qsizetype row = 0; row < m_list.ListItems()->Count(); ++row) {
        ListItem &item = *m_list.ListItems()->Item(static_cast<qint32>(row) + 1);
        if (row < points)
            fillRow(item, row, grown);
        else
            clearRow(item);
    }
    for (const qint16 column : std::as_const(grown))
        widen(column);
    if (m_reading)
        fillValues();
    showCount(points);
}

// The title stands in the tab, or above the view; its head has what they do not tell.
void PointTables::showCount(qsizetype points)
{
    m_list.setCaption(tr("Points: %1").arg(points));
    m_list.listView()->setAccessibleName(title());
}

QString PointTables::title() const
{
    return Localise(displayName(m_list.CurrentType()));
}

// Rows behind the points are empty.
void PointTables::clearRow(ListItem &item)
{
    const auto columns = static_cast<qint16>(m_list.ColumnHerders()->Count());
    for (qint16 column = 1; column < columns; ++column)
        item.setSubItem(column, QString());
}

// Notes the columns that may need more room.
void PointTables::fillRow(ListItem &item, qsizetype row, QSet<qint16> &grown)
{
    const QVariantList &cells = m_project->rows(m_list.CurrentType()).at(row).cells;
    const qsizetype shown = std::min<qsizetype>(cells.size(), m_list.ColumnHerders()->Count() - 1);
    for (qsizetype column = 0; column < shown; ++column) {
        const QVariant &cell = cells.at(column);
        const QString text = cell.typeId() != QMetaType::Bool ? cellText(cell)
                             : cell.toBool()                  ? tr("Yes")
                                                              : tr("No");
        const auto shownColumn = static_cast<qint16>(column + 1);
        if (text.size() > item.SubItem(shownColumn).size())
            grown.insert(shownColumn);
        item.setSubItem(shownColumn, text);
    }
}

void PointTables::showRow(qsizetype row)
{
    if (row < 0 || row >= m_list.ListItems()->Count())
        return;
    choose(*m_list.ListItems()->Item(static_cast<qint32>(row) + 1));
}

// Whoever is led to a row sees it; one that is filtered out has nothing to be selected.
void PointTables::choose(ListItem &item)
{
    m_list.setSelectedItem(&item);
    if (!m_list.listView()->selectionModel()->hasSelection()) {
        showAll();
        m_list.setSelectedItem(&item);
    }
    item.EnsureVisible();
}

void PointTables::showAll()
{
    ListGrid &grid = *m_list.listView()->grid();
    const auto columns = static_cast<qint16>(m_list.ColumnHerders()->Count());
    for (qint16 column = ListGrid::anyColumn; column < columns; ++column)
        grid.setFilterText(column, {});
}

void PointTables::fitColumns()
{
    QString errMsg;
    m_list.UpdateListViewWidth(errMsg);
}

void PointTables::goTo(const QString &name)
{
    if (ListItem *item = m_list.FindItem(name, 1))
        choose(*item);
}

// Reading.

void PointTables::setReading(PointReading &reading)
{
    m_reading = &reading;
    connect(&m_list, &ORVListView::QueryRead, &reading,
            [&reading](const LwType &type) { reading.read(type); });
    connect(&reading, &PointReading::begun, this, &PointTables::showBusy);
    connect(&reading, &PointReading::valuesRead, this, [this] {
        if (!m_soon.isActive())
            m_soon.start(); // answers of a long table come one upon the other
    });
    connect(&reading, &PointReading::ended, this, [this] {
        m_soon.stop();
        showBusy();
        fillValues();
    });
    connect(&reading, &PointReading::dropped, this, [this] {
        m_soon.stop();
        showBusy();
    });
    showBusy();
    fillValues();
}

void PointTables::showBusy()
{
    m_list.SetImage(m_reading && m_reading->isReading());
}

// Nothing but what is another value, so that whoever works in the table is not disturbed.
void PointTables::fillValues()
{
    const LwType type = m_list.CurrentType();
    const auto column = static_cast<qint16>(valueColumn(type) + 1);
    const ListItems &items = *m_list.ListItems();
    if (!m_project || column < 1 || column >= m_list.ColumnHerders()->Count())
        return;
    const QList<ProjectRow> &rows = m_project->rows(type);
    const qsizetype count = std::min<qsizetype>(rows.size(), items.Count());
    bool needsRoom = false;
    for (qsizetype row = 0; row < count; ++row) {
        ListItem &item = *items.Item(static_cast<qint32>(row) + 1);
        const QString text = cellText(rows.at(row).cells.at(column - 1));
        const QString former = item.SubItem(column);
        needsRoom = needsRoom || text.size() > former.size();
        if (former != text)
            item.setSubItem(column, text);
    }
    if (needsRoom)
        widen(column); // what was fitted to shorter values
    showOld(rows, column);
}

// What the controller has not told when it was asked.
void PointTables::showOld(const QList<ProjectRow> &rows, qint16 column)
{
    ListGrid &grid = *m_list.listView()->grid();
    bool needsRoom = false;
    const qsizetype count = std::min<qsizetype>(rows.size(), m_list.ListItems()->Count());
    for (qsizetype row = 0; row < count; ++row) {
        const ListItem &item = *m_list.ListItems()->Item(static_cast<qint32>(row) + 1);
        const AskedPoint point = PointRows::pointOf(m_list.CurrentType(), row, rows.at(row));
        const CellState state = m_reading->isOld(point) ? CellState::Old : CellState::Plain;
        if (grid.cellState(&item, column) == state)
            continue;
        grid.setCellState(&item, column, state);
        needsRoom = needsRoom || state == CellState::Old;
    }
    if (needsRoom)
        widen(column);
}

// A mark takes room of the value. Columns that were all in sight stay so where the last one
// has room to give.
void PointTables::widen(qint16 column)
{
    ReportList &list = *m_list.listView();
    const auto last = static_cast<qint16>(m_list.ColumnHerders()->Count() - 1);
    const bool isInSight = list.horizontalScrollBar()->maximum() == 0;
    const int room = list.columnWidth(last);
    if (!grow(column) || column == last || !isInSight)
        return;
    list.grid()->fitColumn(last);
    if (list.columnWidth(last) > room)
        list.setColumnWidth(last, room);
}

// Says whether it has become wider.
bool PointTables::grow(qint16 column)
{
    ReportList &list = *m_list.listView();
    const int before = list.columnWidth(column);
    list.grid()->fitColumn(column);
    if (list.columnWidth(column) < before)
        list.setColumnWidth(column, before);
    return list.columnWidth(column) > before;
}

// Names.

bool PointTables::canName() const
{
    return rowOf(m_list.SelectedItem()) >= 0 && nameColumn(m_list.CurrentType()) >= 0;
}

void PointTables::editName()
{
    m_list.StartLabelEdit();
}

// A name, as a spreadsheet's cell is; what else may be edited is the grid's. Not of a row that
// the click has taken out of the selection.
void PointTables::editClicked(const QModelIndex &cell)
{
    const qsizetype names = nameColumn(m_list.CurrentType());
    const ReportList &list = *m_list.listView();
    const bool isChosen =
        cell.isValid() && list.currentIndex() == cell && list.selectionModel()->isSelected(cell);
    if (names >= 0 && isChosen && cell.column() == names + 1)
        editName();
}

// From 0; -1 for one that is gone.
qsizetype PointTables::rowOf(const ListItem *item) const
{
    return item && m_project && item->isAlive() ? item->Index() - 1 : -1;
}

// -1 for a row without a point.
qsizetype PointTables::pointOf(const ListItem *item) const
{
    const qsizetype row = rowOf(item);
    return row >= 0 && row < m_project->rows(m_list.CurrentType()).size() ? row : -1;
}

// Empty for a row without a point, too.
QString PointTables::nameOf(LwType type, qsizetype row) const
{
    return m_project ? m_project->rows(type).value(row).name : QString();
}

void PointTables::allowEditing(qint16 &cancel)
{
    m_edited = m_list.SelectedItem(); // another one may be when the name comes
    if (rowOf(m_edited) < 0 || nameColumn(m_list.CurrentType()) < 0)
        cancel = 1;
}

void PointTables::takeName(qint16 &cancel, const QString &name)
{
    const LwType type = m_list.CurrentType();
    const qsizetype row = rowOf(m_edited);
    cancel = 1;
    const QString former = nameOf(type, row);
    if (row < 0 || name == former)
        return;
    const QString fault = m_project->nameFault(type, row, name);
    const QPointer<PointTables> self(this); // while the user reads
    if (!fault.isEmpty())
        Q_EMIT refused(fault);
    if (!self)
        return;
    // Queued: the field for the name is still open. The row may be another point's by then.
    const auto want = [this, type, row, name, former] {
        if (nameOf(type, row) != former)
            return;
        if (row < m_project->rows(type).size())
            Q_EMIT renameWanted(type, row, name);
        else
            Q_EMIT pointWanted(type, name, row);
    };
    if (fault.isEmpty())
        QMetaObject::invokeMethod(this, want, Qt::QueuedConnection);
    else
        QMetaObject::invokeMethod(
            this, [this, type, name] { correctName(type, name); }, Qt::QueuedConnection);
}

LwType PointTables::type() const
{
    return m_list.CurrentType();
}

bool PointTables::hasFocus() const
{
    return m_list.listView()->hasFocus();
}

qsizetype PointTables::selectedPoint() const
{
    return pointOf(m_list.SelectedItem());
}

QList<qsizetype> PointTables::selectedPoints() const
{
    QList<qsizetype> points;
    const ListItems &items = *m_list.ListItems();
    for (qint32 row = 1; m_list.CurrentType() != dsCode && row <= items.Count(); ++row) {
        const ListItem *item = items.Item(row);
        if (item->Selected() && pointOf(item) >= 0)
            points.append(pointOf(item));
    }
    return points;
}

// Edits the same name again, as it was typed.
void PointTables::correctName(LwType type, const QString &typed)
{
    if (m_list.CurrentType() != type || rowOf(m_edited) < 0)
        return;
    m_list.setSelectedItem(m_edited);
    m_list.listView()->setFocus();
    m_list.StartLabelEdit();
    if (auto *field = m_list.listView()->viewport()->findChild<QLineEdit *>()) {
        field->setText(typed);
        field->selectAll();
    }
}

} // namespace ORVTListview
