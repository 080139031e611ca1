#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/CellRule.h>

#include <QtCore/QLocale>

namespace ORVTListview {

// What becomes of a text that somebody enters into a cell: the text that the cell then
// holds, or the sentence that says why it is not taken.
struct CellAnswer
{
    QString text = {};
    QString refusal = {};

    bool isTaken() const { return refusal.isEmpty(); }

    friend bool operator==(const CellAnswer &, const CellAnswer &) = default;
};

// A number may be typed with a point or with the locale's decimal sign, without groups.
// Blanks around a text count for nothing but in cells of text.
ORVT_HOUSE_EXPORT CellAnswer checkedCell(const CellRule &rule, QString typed,
                                         const QLocale &locale);

// The words a cell of this kind is chosen from; none for text and plain numbers.
ORVT_HOUSE_EXPORT QStringList cellChoices(const CellRule &rule);

// Whether a cell of yes or no says yes.
ORVT_HOUSE_EXPORT bool isYes(const CellRule &rule, const QString &text);

// A number so many steps of one away, within the range and with the decimals that it
// has; a text that is no number counts as zero.
ORVT_HOUSE_EXPORT QString steppedNumber(const CellRule &rule, const QString &text, int steps,
                                        const QLocale &locale);

} // namespace ORVTListview
