#include "widgets/list/ReportListParts.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHeaderView>

#include <cstddef>
#include <utility>
#include <vector>

namespace ORVTListview {
namespace {

// The view forgets what it has hidden of rows that it has no more.
void keepHidden(QTableView &view, const ReportModel &model)
{
    if (!view.verticalHeader()->sectionsHidden())
        return;
    for (int place = 0; place < model.rowCount(); ++place) {
        model.rowAt(place).isHidden = view.isRowHidden(place);
        if (model.rowAt(place).isHidden)
            view.showRow(place);
    }
}

void hideKept(QTableView &view, const ReportModel &model)
{
    for (int place = 0; place < model.rowCount(); ++place) {
        if (std::exchange(model.rowAt(place).isHidden, false))
            view.hideRow(place);
    }
}

// -1 when all are hidden.
int firstSeen(const QTableView &view)
{
    for (int place = 0; place < view.model()->rowCount(); ++place) {
        if (!view.isRowHidden(place))
            return place;
    }
    return -1;
}

// The order that is, but for the rows at places, which come last.
QList<int> withLast(const ReportModel &model, const QList<int> &places)
{
    std::vector<bool> isLast(static_cast<std::size_t>(model.rowCount()), false);
    QList<int> last;
    for (const int place : places) {
        if (place < 0)
            continue;
        isLast[static_cast<std::size_t>(place)] = true;
        last.append(model.positionOf(model.rowAt(place)));
    }
    QList<int> positions;
    for (int place = 0; place < model.rowCount(); ++place) {
        if (!isLast[static_cast<std::size_t>(place)])
            positions.append(model.positionOf(model.rowAt(place)));
    }
    return positions + last;
}

} // namespace

// What is told in between may destroy the list.
void ReportListParts::show(const ReportModel::Order &positions)
{
    const StillView still(view);
    const QPointer<QTableView> alive(&view);
    const QModelIndex current = view.currentIndex();
    const int column = current.column();
    if (!rowChoice.selection().releaseAll())
        return;
    keepHidden(view, model);
    model.show(positions);
    if (!alive)
        return;
    hideKept(view, model);
    rowChoice.selection().followOrder();
    if (alive && current.isValid() && !view.currentIndex().isValid())
        view.selectionModel()->setCurrentIndex(model.index(firstSeen(view), column),
                                               QItemSelectionModel::NoUpdate);
}

bool ReportListParts::isHidden(const ReportRow &row) const
{
    const int place = model.placeOf(row);
    return place < 0 ? row.isHidden : view.isRowHidden(place);
}

void ReportListParts::setHidden(ReportRow &row, bool hidden)
{
    const int place = model.placeOf(row);
    if (place < 0)
        row.isHidden = hidden;
    else
        view.setRowHidden(place, hidden);
}

void ReportListParts::removeRow(int position)
{
    const StillView still(view);
    const bool isUnseen = model.isOrdered() && model.placeOf(model.row(position)) < 0;
    if (isUnseen) // nobody is told
        rowChoice.setSelected(model.row(position), false);
    model.deleteRow(position);
    if (isUnseen && unseenFollower)
        unseenFollower();
}

void ReportListParts::removeShown(int place, int count)
{
    const StillView still(view);
    model.deleteShown(place, count);
}

// The order that is wanted is as it was, but for what has been done; what is told in between
// may end all this.
void ReportListParts::doAtEnd(const QList<int> &places, const std::function<void()> &act)
{
    const bool isOrdered = model.isOrdered();
    const QPointer<QTableView> alive(&view);
    const auto showAsBefore = [&] {
        if (alive && !isOrdered)
            show(model.wantedOrder());
    };
    try {
        show(withLast(model, places));
        if (alive)
            act();
    } catch (...) { // of whom it was told
        showAsBefore();
        throw;
    }
    showAsBefore();
}

void ReportListParts::clearRows()
{
    if (model.rows() > 0)
        model.setRows({});
}

void ReportListParts::removeColumn(int position)
{
    const StillView still(view);
    model.deleteColumn(position);
}

void ReportListParts::clearColumns()
{
    const StillView still(view);
    model.clearColumns();
}

} // namespace ORVTListview
