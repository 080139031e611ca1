#pragma once

#include <QtCore/QList>
#include <QtCore/QStringView>

namespace ORVTListview {

using LineViews = QList<QStringView>;

// The lines of a text whose lines are separated by CR LF. The text must outlive them.
LineViews linesOf(QStringView text);

// For each line of `now` the line of `before` that it still is, both from 0, ascending;
// -1 for one that is new.
QList<qsizetype> matchingLines(const LineViews &before, const LineViews &now);

} // namespace ORVTListview
