#pragma once

class QMimeData;
class QTableView;
template <typename T>
class QList;

namespace ORVTListview {

class ReportModel;

// Adds the given rows of a view to data, as text with a tab between cells and as
// an HTML table. Rows and columns that are hidden are left out.
void copyRows(const QTableView &view, const QList<int> &places, QMimeData &data);

// Adds the names of the rows' points, for programs: the texts of the label column, or
// where that is not set those under "Label" or "Name". A row's number is no name.
void addNames(const QTableView &view, const ReportModel &model, const QList<int> &places,
              QMimeData &data);

} // namespace ORVTListview
