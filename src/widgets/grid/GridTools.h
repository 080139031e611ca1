#pragma once

class QTableView;

namespace ORVTListview {

class CellEdit;
class CellTable;
class GridRules;
class GridSelection;

// What those parts of a grid work with that act on its selected cells.
struct GridTools
{
    QTableView &view;
    const CellTable &table;
    const GridRules &rules;
    GridSelection &selection;
    CellEdit &edit;
};

} // namespace ORVTListview
