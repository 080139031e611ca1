#include "widgets/box/ChangedRanges.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

using Range = ChangedRanges::Range;

int lengthOf(const QTextDocument &document)
{
    return document.characterCount() - 1; // without its last, invisible separator
}

// Two that nothing, or nothing of interest, lies between.
Range joined(const Range &front, const Range &back)
{
    return {std::min(front.from, back.from), std::max(front.to, back.to), front.grown + back.grown,
            front.lines + back.lines};
}

} // namespace

ChangedRanges::ChangedRanges(const QTextDocument &document)
    : m_document(document)
    , m_length(lengthOf(document))
    , m_lines(document.blockCount())
{
}

// The announced lengths may count the document's last, invisible separator.
void ChangedRanges::note(int from, int removed, int added)
{
    const int grown = lengthOf(m_document) - m_length;
    const int lines = m_document.blockCount() - m_lines;
    const int former = std::max({removed, added - grown, -grown});
    const int end = std::max(from, std::min(from + former, m_length)); // as it was
    m_length += grown;
    m_lines += lines;
    Range changed{from, end + grown, grown, lines};
    QList<Range> apart;
    for (Range range : std::as_const(m_ranges)) {
        const bool isBehind = range.from > end;
        const bool isBefore = range.to < from;
        if (!isBefore) {
            range.from = isBehind ? range.from + grown : std::min(range.from, from);
            range.to += grown;
        }
        if (isBefore || isBehind)
            apart.append(range);
        else
            changed = joined(changed, range);
    }
    m_ranges = apart;
    insert(changed);
}

void ChangedRanges::insert(const Range &changed)
{
    constexpr qsizetype most = 256;
    const auto behind = std::find_if(m_ranges.cbegin(), m_ranges.cend(),
                                     [&](const Range &range) { return range.from > changed.from; });
    m_ranges.insert(behind, changed);
    if (m_ranges.size() > most)
        joinNearest();
}

void ChangedRanges::joinNearest()
{
    const auto distance = [this](qsizetype i) { return m_ranges[i + 1].from - m_ranges[i].to; };
    qsizetype nearest = 0;
    for (qsizetype i = 1; i + 1 < m_ranges.size(); ++i) {
        if (distance(i) < distance(nearest))
            nearest = i;
    }
    m_ranges[nearest] = joined(m_ranges[nearest], m_ranges[nearest + 1]);
    m_ranges.removeAt(nearest + 1);
}

} // namespace ORVTListview
