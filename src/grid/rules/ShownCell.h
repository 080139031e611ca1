#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/CellState.h>

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace ORVTListview {

// A number, and the unit behind it, with the locale's decimal sign; any other text as it is.
ORVT_HOUSE_EXPORT QString shownNumber(const QString &text, const QLocale &locale);

// The state in a word, in the thread's language; none for a plain cell.
ORVT_HOUSE_EXPORT QString stateWord(CellState state);

// What screen readers say of a cell.
ORVT_HOUSE_EXPORT QString spokenCell(const QString &text, CellState state);

} // namespace ORVTListview
