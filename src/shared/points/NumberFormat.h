#pragma once

#include <QtCore/QString>

namespace ORVTListview {

// value written with a number format, the same in every locale:
//
//   (empty)    the plain decimal number; so does "General Number"
//   0          a digit place; shows 0 where the number has no digit
//   #          a digit place; shows nothing where the number has no digit, so
//              that "#" shows nothing for zero
//   ,          between two digit places: digits stand in groups of three
//   .          the decimal point; places after it show 0 for "0" and nothing for "#"
//   %          shown, and the number is multiplied by 100
//   "text"     the text itself; an unclosed quote reaches to the end
//   \x         the character x; a backslash at the end shows itself
//   a;b;c      a for positive numbers, b for negative ones (which then show no
//              sign of their own), c for zero; an absent or empty b or c means a
//   Fixed, Standard, Percent    short for 0.00, #,##0.00 and 0.00%
//
// Everything else shows itself. A number with more digits than places keeps all
// its digits, the surplus at the first place. The minus sign stands before
// everything else. A format without a place shows its text only. Names of formats
// are known in any letter case. No format fails.
QString formatNumber(qint32 value, const QString &format);

} // namespace ORVTListview
