#include "editor/SettledLines.h"

#include "widgets/box/LateColours.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {

SettledLines::SettledLines(QTextDocument &document)
    : m_document(document)
    , m_length(document.characterCount())
{
    connect(&document, &QTextDocument::contentsChange, this, &SettledLines::noteChange);
    connect(&LateColours::of(document), &LateColours::stopped, this, &SettledLines::unsettleAll);
}

void SettledLines::settleAll()
{
    m_changed.clear();
    m_isKnown = true;
}

void SettledLines::unsettleAll()
{
    m_changed.clear();
    m_isKnown = false;
}

// The announced lengths may count the document's last, invisible separator.
void SettledLines::noteChange(int from, int removed, int added)
{
    const int grown = m_document.characterCount() - m_length;
    m_length += grown;
    if (!m_isKnown)
        return;
    const int end = from + std::max({removed, added - grown, -grown}); // as it was
    Range changed{from, end + grown};
    QList<Range> apart;
    for (const Range &range : m_changed) {
        if (range.last < from) {
            apart.append(range);
        } else if (range.first > end) {
            apart.append({range.first + grown, range.last + grown});
        } else {
            changed.first = std::min(changed.first, range.first);
            changed.last = std::max(changed.last, range.last + grown);
        }
    }
    m_changed = apart;
    insert(changed);
}

void SettledLines::insert(const Range &changed)
{
    constexpr qsizetype most = 32;
    const auto behind = std::find_if(m_changed.cbegin(), m_changed.cend(), [&](const Range &range) {
        return range.first > changed.first;
    });
    m_changed.insert(behind, changed);
    if (m_changed.size() > most)
        joinNearest();
}

void SettledLines::joinNearest()
{
    const auto distance = [this](qsizetype i) {
        return m_changed[i + 1].first - m_changed[i].last;
    };
    qsizetype nearest = 0;
    for (qsizetype i = 1; i + 1 < m_changed.size(); ++i) {
        if (distance(i) < distance(nearest))
            nearest = i;
    }
    m_changed[nearest].last = m_changed[nearest + 1].last;
    m_changed.removeAt(nearest + 1);
}

std::optional<QList<SettledLines::Range>> SettledLines::unsettled() const
{
    if (!m_isKnown)
        return std::nullopt;
    const auto lineOf = [this](int place) {
        return m_document.findBlock(std::clamp(place, 0, m_length - 1)).blockNumber();
    };
    QList<Range> lines;
    for (const Range &changed : m_changed) {
        const Range range{lineOf(changed.first), lineOf(changed.last)};
        if (!lines.isEmpty() && lines.constLast().last + 1 >= range.first)
            lines.last().last = std::max(lines.constLast().last, range.last);
        else
            lines.append(range);
    }
    return lines;
}

} // namespace ORVTListview
