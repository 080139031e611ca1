#include "editor/SettledLines.h"

#include "widgets/box/LateColours.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

namespace ORVTListview {

SettledLines::SettledLines(QTextDocument &document)
    : m_document(document)
    , m_changed(document)
{
    connect(&document, &QTextDocument::contentsChange, this,
            [this](int from, int removed, int added) { m_changed.note(from, removed, added); });
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

QList<SettledLines::Range> SettledLines::unsettled() const
{
    QList<Range> lines;
    for (const ChangedRanges::Range &changed : m_changed.ranges()) {
        const int first = m_document.findBlock(changed.from).blockNumber();
        const int last = m_document.findBlock(changed.to).blockNumber();
        if (lines.isEmpty() || lines.constLast().last < first)
            lines.append({first, last, changed.lines});
        else
            lines.last() = {lines.constLast().first, last, lines.constLast().grown + changed.lines};
    }
    return lines;
}

} // namespace ORVTListview
