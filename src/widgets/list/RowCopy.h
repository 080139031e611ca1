#pragma once

class QMimeData;
class QTableView;
template <typename T>
class QList;

namespace ORVTListview {

// Adds the given rows of a view to data, as text with a tab between cells and as
// an HTML table. Rows and columns that are hidden are left out.
void copyRows(const QTableView &view, const QList<int> &positions, QMimeData &data);

} // namespace ORVTListview
