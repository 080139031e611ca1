#pragma once

#include "grid/rules/CellTexts.h"

#include <QtCore/QStringList>

namespace ORVTListview {

class Trend;

// The samples as a table: a row for each time, a column for each line, numbers with a point.
// The titles are those of the first column and of the others; a gap is empty.
CellBlock trendCells(const Trend &trend, const QString &timeTitle);

} // namespace ORVTListview
