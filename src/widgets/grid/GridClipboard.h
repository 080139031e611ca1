#pragma once

#include "grid/rules/CellTexts.h"
#include "widgets/grid/GridSelection.h"

class QTableView;

namespace ORVTListview {

class CellEdit;
class CellTable;
struct CellEntry;

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

    // False when nothing is selected; the clipboard is then as it was.
    bool copy(bool withHeaders) const;

    // False when nothing was entered.
    bool paste();

private:
    struct Place
    {
        QList<int> rows;
        QList<int> columns;
    };

    bool enterBlock(const CellBlock &copied, const QList<CellPlace> &chosen);
    QList<CellEntry> entriesFor(const CellBlock &cells, const Place &place) const;
    bool refuseForRoom(CellPlace first);

    Tools m_tools;
};

} // namespace ORVTListview
