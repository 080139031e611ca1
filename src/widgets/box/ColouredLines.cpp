#include "widgets/box/ColouredLines.h"

#include "base/TextSearch.h"

#include <algorithm>

namespace ORVTListview {

void ColouredLines::append(const ColouredText &text)
{
    Line line;
    line.part = static_cast<int>(m_parts.size());
    m_parts.append(text);
    for (qsizetype end = 0; end >= 0; line.start += line.length + 2) {
        while (line.run < text.runs.size() &&
               line.runStart + text.runs[line.run].length <= line.start)
            line.runStart += static_cast<int>(text.runs[line.run++].length);
        end = findCrLf(text.text, line.start);
        line.length = static_cast<int>(end < 0 ? text.text.size() : end) - line.start;
        m_lines.push_back(line);
    }
}

QString ColouredLines::text() const
{
    const QStringView lineEnd = u"\r\n";
    qsizetype length = 0;
    for (const ColouredText &part : m_parts)
        length += lineEnd.size() + part.text.size();
    QString result;
    result.reserve(length);
    for (const ColouredText &part : m_parts) {
        if (&part != &m_parts.constFirst())
            result += lineEnd;
        result += part.text;
    }
    return result;
}

ColouredText ColouredLines::at(int index) const
{
    const Line &wanted = line(index);
    return {m_parts[wanted.part].text.sliced(wanted.start, wanted.length), runsOf(index)};
}

QStringView ColouredLines::textOf(int index) const
{
    const Line &wanted = line(index);
    return QStringView(m_parts[wanted.part].text).sliced(wanted.start, wanted.length);
}

QList<ColouredText::Run> ColouredLines::runsOf(int index) const
{
    const Line &begin = line(index);
    const QList<ColouredText::Run> &runs = m_parts[begin.part].runs;
    const int end = begin.start + begin.length;
    ColouredText result;
    int start = begin.runStart;
    for (qsizetype run = begin.run; run < runs.size() && start < end; ++run) {
        const int next = start + static_cast<int>(runs[run].length);
        result.appendRun(std::min(next, end) - std::max(start, begin.start), runs[run].colour);
        start = next;
    }
    return result.runs;
}

ColouredText ColouredLines::between(int first, int last, bool hasLineEndBefore) const
{
    ColouredText result;
    for (int index = first; index <= last; ++index) {
        if (index > first || hasLineEndBefore) {
            result.text += QStringLiteral("\r\n");
            result.appendRun(2, ColouredText::automatic);
        }
        result.text += textOf(index);
        for (const ColouredText::Run &run : runsOf(index))
            result.appendRun(run.length, run.colour);
    }
    return result;
}

} // namespace ORVTListview
