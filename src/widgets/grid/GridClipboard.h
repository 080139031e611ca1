#pragma once

#include "grid/rules/CellTexts.h"
#include "widgets/grid/GridSelection.h"

class QTableView;

namespace ORVTListview {

class CellEdit;
class CellTable;

// Copies the selected cells of a grid, and pastes what programs have copied.
class GridClipboard
{
public:
    struct Tools
    {
        QTableView &view;
        const CellTable &table;
        GridSelection &selection;
        CellEdit &edit;
    };

    explicit GridClipboard(const Tools &tools)
        : m_tools(tools)
    {
    }
    Q_DISABLE_COPY_MOVE(GridClipboard) // the part of a grid

    void copy(bool withHeaders) const;

    // False when nothing was entered.
    bool paste();

private:
    bool enter(const CellBlock &cells, CellPlace first);
    bool refuseForRoom(CellPlace first);

    Tools m_tools;
};

} // namespace ORVTListview
