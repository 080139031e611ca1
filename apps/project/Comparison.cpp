#include "project/Comparison.h"

#include "project/LineMatch.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr qsizetype around = 3;

// Lines that come in the place of others stand beside them.
void appendReplaced(QList<ComparedLine> &result, const LineViews &before, const LineViews &now,
                    qsizetype line)
{
    for (qsizetype i = 0; i < std::max(before.size(), now.size()); ++i) {
        const bool isRemoved = i >= now.size();
        const auto kind = isRemoved           ? ComparedLine::Removed
                          : i < before.size() ? ComparedLine::Changed
                                              : ComparedLine::Added;
        result.append({kind, before.value(i).toString(), now.value(i).toString(),
                       line + std::min(i, std::max<qsizetype>(now.size() - 1, 0)) + 1});
    }
}

QList<ComparedLine> allLines(const LineViews &before, const LineViews &now)
{
    const QList<qsizetype> partners = matchingLines(before, now);
    QList<ComparedLine> result;
    qsizetype done = 0;
    for (qsizetype i = 0; i <= now.size();) {
        qsizetype next = i;
        while (next < now.size() && partners[next] < 0)
            ++next;
        const qsizetype place = next < now.size() ? partners[next] : before.size();
        appendReplaced(result, before.sliced(done, place - done), now.sliced(i, next - i), i);
        if (next < now.size())
            result.append(
                {ComparedLine::Same, before[place].toString(), now[next].toString(), next + 1});
        done = place + 1;
        i = next + 1;
    }
    return result;
}

} // namespace

QList<ComparedLine> compared(const QString &before, const QString &after)
{
    if (before == after)
        return {};
    const QList<ComparedLine> lines = allLines(linesOf(before), linesOf(after));
    QList<ComparedLine> result;
    qsizetype shown = 0; // up to where
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].kind == ComparedLine::Same)
            continue;
        const qsizetype from = std::max(shown, i - around);
        if (from > shown)
            result.append({ComparedLine::Gap, {}, {}, 0});
        const qsizetype end = std::min(lines.size(), i + around + 1);
        if (end > from)
            result.append(lines.sliced(from, std::max<qsizetype>(end - from, 0)));
        shown = std::max(shown, end);
    }
    if (shown < lines.size())
        result.append({ComparedLine::Gap, {}, {}, 0});
    return result;
}

} // namespace ORVTListview
