#pragma once

#include "base/HouseExport.h"
#include "base/TextRules.h"
#include "editor/rules/TextEdits.h"

#include <QtCore/QList>
#include <QtCore/QStringList>

#include <algorithm>

namespace ORVTListview {

// A line, or a part of one, without a word.
inline bool isEmptyLine(QStringView line)
{
    return std::all_of(line.begin(), line.end(), isBlank);
}

// The lines without their REM when all of them are comments, else each behind one, which
// stands at the indent. Lines without a word stay as they are and do not count.
ORVT_HOUSE_EXPORT QStringList withCommentsToggled(const QStringList &lines);

// The places of the lines in natural order, 2 before 10, whatever their letter case; equal
// ones in the order in which they stand. The same in every locale.
ORVT_HOUSE_EXPORT QList<qsizetype> sortedPlaces(const QStringList &lines);

// What joins lines, the first of which begins at `start`: a blank takes the place of a line
// end with the blanks around it; what holds no word adds nothing.
ORVT_HOUSE_EXPORT QList<TextEdit> joints(const QStringList &lines, qint32 start);

} // namespace ORVTListview
