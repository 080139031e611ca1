#pragma once

#include "base/HouseExport.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace ORVTListview {

// The texts of cells, row by row, as programs hand them to one another.
using CellBlock = QList<QStringList>;

// Cells with tabs between and a line feed behind each row. A cell with a tab, a line end
// or a quotation mark at its begin stands in quotation marks, in which two mean one.
ORVT_HOUSE_EXPORT QString tabbedText(const CellBlock &cells);

// Reads that, whichever program wrote it and whatever its line ends are. A line end at the
// end is no row of its own. Rows are as long as they are.
ORVT_HOUSE_EXPORT CellBlock cellsOfTabbedText(const QString &text);

// Cells with commas between and CR LF behind each row, as RFC 4180 has them.
ORVT_HOUSE_EXPORT QString commaText(const CellBlock &cells);

// An HTML table, the first so many rows of which are heads.
ORVT_HOUSE_EXPORT QString htmlTable(const CellBlock &cells, qsizetype heads);

// What a block makes of a place of so many rows and columns that is chosen for it: a
// place that it fills several times, without rest, gets it as often; any other gets it
// once, however large it is.
ORVT_HOUSE_EXPORT CellBlock fittedBlock(CellBlock cells, qsizetype rows, qsizetype columns);

} // namespace ORVTListview
