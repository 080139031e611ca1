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
    for (const ChangedRanges::Range &changed : m_changed.ranges())
        lines.append({m_document.findBlock(changed.from).blockNumber(),
                      m_document.findBlock(changed.to).blockNumber()});
    return lines;
}

} // namespace ORVTListview
