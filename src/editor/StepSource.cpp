#include "editor/StepSource.h"

#include "widgets/box/BoxText.h"

#include <algorithm>

namespace ORVTListview {

qsizetype StepSource::lineEnd(int line) const
{
    return line + 1 < lineCount() ? lineStart(line + 1) - 2 : text().size();
}

bool StepSource::hasWord(int line) const
{
    const QString shown = text().mid(lineStart(line), lineEnd(line) - lineStart(line));
    return std::any_of(shown.cbegin(), shown.cend(),
                       [](QChar c) { return c != u' ' && c != u'\t'; });
}

const SharedText &ShownSource::text() const
{
    return m_box.sharedText();
}

int ShownSource::lineCount() const
{
    return m_box.lineCount();
}

int ShownSource::lineOf(qsizetype position) const
{
    return m_box.lineOf(static_cast<qint32>(position));
}

qsizetype ShownSource::lineStart(int line) const
{
    return m_box.lineStart(line);
}

// From the back, so that the lines before stay where they are.
FormerSource::FormerSource(const SharedText &former, const BoxText &box,
                           const SettledLines &settled)
    : m_text(former)
{
    const QList<SettledLines::Range> changed = settled.unsettled();
    if (changed.isEmpty())
        return;
    int grown = box.lineCount() - lineCount();
    for (auto range = changed.crbegin(); range != changed.crend(); ++range) {
        const int last = range->last - grown;
        grown -= range->grown;
        const int first = range->first - grown;
        if (first < 0 || last < first || last >= lineCount()) {
            m_text = {}; // they do not stand for each other
            break;
        }
        const qint32 start = box.lineStart(range->first);
        const qint32 end =
            box.lineStart(range->last) + static_cast<qint32>(box.lineText(range->last).size());
        m_text = m_text.replaced(lineStart(first), lineEnd(last) - lineStart(first),
                                 box.range(start, end - start));
    }
    m_starts.clear();
}

// Each ends in CR LF, and neither stands elsewhere.
const QList<qsizetype> &FormerSource::lineStarts() const
{
    if (!m_starts.isEmpty())
        return m_starts;
    SharedText::Walk walk(m_text);
    m_starts.append(0);
    for (qsizetype place = 0; place < m_text.size();) {
        const QStringView piece = walk.behind(place, m_text.size());
        for (qsizetype end = piece.indexOf(u'\n'); end >= 0; end = piece.indexOf(u'\n', end + 1))
            m_starts.append(place + end + 1);
        place += piece.size();
    }
    return m_starts;
}

int FormerSource::lineOf(qsizetype position) const
{
    const QList<qsizetype> &starts = lineStarts();
    const auto behind = std::upper_bound(starts.cbegin(), starts.cend(), position);
    return static_cast<int>(behind - starts.cbegin()) - 1;
}

} // namespace ORVTListview
