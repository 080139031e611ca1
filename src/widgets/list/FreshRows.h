#pragma once

class QTableView;

namespace ORVTListview {

// For a view whose rows were all replaced: it begins at its start, and takes over
// nothing that the header has kept of the rows before, which is by position.
void beginAfresh(QTableView &view);

} // namespace ORVTListview
