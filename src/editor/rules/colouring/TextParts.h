#pragma once

#include <QtCore/QList>
#include <QtCore/QStringView>

#include <functional>
#include <optional>

namespace ORVTListview {

// A text in parts of whole lines; the CR LF between two parts is in neither. A part that
// starts at `start` ends with the first line that reaches to end(start); without an answer
// it is the last.
QList<QStringView> partsAt(QStringView text,
                           const std::function<std::optional<qsizetype>(qsizetype start)> &end);

// A long text in such parts, as many as there are processors but few. A text of
// less than two shortest parts is one.
inline constexpr qsizetype shortestPart = qsizetype{256} * 1024;
QList<QStringView> partsOfLines(QStringView text, int processors);
QList<QStringView> partsOfLines(QStringView text);

// Calls for each number below the count, at the same time if there are threads to be had,
// and returns when all are done. Raises what a call has raised.
void atTheSameTime(qsizetype count, const std::function<void(qsizetype)> &call);

} // namespace ORVTListview
