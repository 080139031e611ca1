#include "editor/view/OpenBlocks.h"

#include <QtGui/QTextBlock>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ORVTListview {

using namespace std::chrono_literals;

namespace {

constexpr int portion = 5000; // lines

} // namespace

OpenBlocks::OpenBlocks(QTextDocument &text)
    : m_text(text)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &OpenBlocks::lookOn);
    connect(&m_text, &QObject::destroyed, &m_timer, &QTimer::stop);
}

void OpenBlocks::start()
{
    connect(&m_text, &QTextDocument::contentsChange, this, &OpenBlocks::noteChange);
    m_lineCount = m_text.blockCount();
    m_next = 0;
    m_blocks = {};
    m_timer.start(0);
}

void OpenBlocks::stop()
{
    m_text.disconnect(this);
    m_timer.stop();
    m_lines.clear();
}

bool OpenBlocks::contains(const QTextBlock &line) const
{
    return std::binary_search(m_lines.cbegin(), m_lines.cend(), line.blockNumber());
}

// What is known of the lines behind the change stays known of them.
void OpenBlocks::noteChange(int from)
{
    const int more = m_text.blockCount() - m_lineCount;
    m_lineCount += more;
    if (more != 0) {
        const QTextBlock changed = m_text.findBlock(from);
        const int line = changed.blockNumber() + (from > changed.position() ? 1 : 0);
        const auto first = std::lower_bound(m_lines.begin(), m_lines.end(), line);
        const auto kept = std::lower_bound(first, m_lines.end(), line - std::min(more, 0));
        for (auto moved = m_lines.erase(first, kept); moved != m_lines.end(); ++moved)
            *moved += more;
    }
    m_next = 0;
    m_blocks = {};
    m_timer.start(300ms);
}

void OpenBlocks::lookOn()
{
    QTextBlock line = m_text.findBlockByNumber(m_next);
    for (int i = 0; i < portion && line.isValid(); ++i, ++m_next, line = line.next())
        m_blocks.read(line.text());
    if (line.isValid()) {
        m_timer.start(0);
        return;
    }
    const QList<int> former = std::exchange(m_lines, m_blocks.open());
    if (former != m_lines)
        Q_EMIT changed();
}

} // namespace ORVTListview
