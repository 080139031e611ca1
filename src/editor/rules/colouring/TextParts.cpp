#include "editor/rules/colouring/TextParts.h"

#include "base/TextSearch.h"

#include <QtCore/QThread>

#include <algorithm>
#include <future>
#include <system_error>
#include <vector>

namespace ORVTListview {

QList<QStringView> partsAt(QStringView text,
                           const std::function<std::optional<qsizetype>(qsizetype start)> &end)
{
    QList<QStringView> parts;
    qsizetype start = 0;
    while (const std::optional<qsizetype> least = end(start)) {
        const qsizetype lineEnd = findCrLf(text, *least);
        if (lineEnd < 0)
            break;
        parts.append(text.sliced(start, lineEnd - start));
        start = lineEnd + 2;
    }
    parts.append(text.sliced(start));
    return parts;
}

QList<QStringView> partsOfLines(QStringView text, int processors)
{
    constexpr qsizetype most = 4;
    const qsizetype count =
        std::clamp<qsizetype>(std::min<qsizetype>(processors, text.size() / shortestPart), 1, most);
    return partsAt(text, [&, part = qsizetype{1}](qsizetype start) mutable {
        const bool isLast = part >= count;
        const qsizetype end = std::max(start, text.size() / count * part++);
        return isLast ? std::nullopt : std::optional(end);
    });
}

QList<QStringView> partsOfLines(QStringView text)
{
    return partsOfLines(text, QThread::idealThreadCount());
}

void atTheSameTime(qsizetype count, const std::function<void(qsizetype)> &call)
{
    std::vector<std::future<void>> others; // each waits for its end
    others.reserve(static_cast<std::size_t>(count));
    qsizetype next = 1;
    try {
        for (; next < count; ++next)
            others.push_back(std::async(std::launch::async, call, next));
    } catch (const std::system_error &) { // no thread is to be had
    }
    if (count > 0)
        call(0);
    for (; next < count; ++next)
        call(next);
    for (std::future<void> &other : others)
        other.get();
}

} // namespace ORVTListview
