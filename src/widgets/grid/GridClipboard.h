#pragma once

#include "grid/rules/CellTexts.h"
#include "widgets/grid/GridSelection.h"
#include "widgets/grid/GridTools.h"

namespace ORVTListview {

struct CellEntry;

// Copies the selected cells of a grid, and pastes what programs have copied.
class GridClipboard
{
public:
    explicit GridClipboard(const GridTools &tools)
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

    bool enterBlock(CellBlock copied, const QList<CellPlace> &chosen);
    QList<CellEntry> entriesFor(CellBlock cells, const Place &place) const;
    bool refuseForRoom(CellPlace first);

    GridTools m_tools;
};

} // namespace ORVTListview
