#include "widgets/box/BoxLines.h"

#include "base/TextSearch.h"
#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextDocument>

#include <algorithm>

namespace ORVTListview {
namespace {

const QStringView lineEnding = u"\r\n";

} // namespace

BoxLines::BoxLines(QTextDocument &document, BoxFormats &formats, const ColouredText &text)
    : m_document(document)
    , m_formats(formats)
    , m_text(text)
{
}

bool BoxLines::keepUnchanged()
{
    if (!mayKeep())
        return false;
    findLines();
    const int most = static_cast<int>(std::min<qsizetype>(m_lines.size(), m_document.blockCount()));
    QTextBlock block = m_document.firstBlock();
    for (; m_front < most && isSame(block, m_lines[m_front]); ++m_front)
        block = block.next();
    // One line at least is left to be replaced, so that it has line ends of its own.
    block = m_document.lastBlock();
    const int mostBehind = std::max(0, most - std::max(1, m_front));
    for (; m_back < mostBehind && isSame(block, m_lines[m_lines.size() - 1 - m_back]); ++m_back)
        block = block.previous();
    return keepsMany();
}

bool BoxLines::keepSameText(const QString &shown)
{
    if (!mayKeep())
        return false;
    const qsizetype most = std::min(shown.size(), m_text.text.size());
    const qsizetype atStart = alikeAtStart(shown, m_text.text);
    const qsizetype atEnd = alikeAtEnd(shown, m_text.text, most - atStart);
    // A line that is kept has a line end at least, but for the first and the last.
    if (atStart + atEnd < (m_document.blockCount() / 2 - 2) * lineEnding.size())
        return false;
    findLines();
    const auto lineOf = [this](qsizetype place) {
        const auto behind = std::upper_bound(
            m_lines.cbegin(), m_lines.cend(), place,
            [](qsizetype wanted, const Line &line) { return wanted < line.start; });
        return static_cast<int>(behind - m_lines.cbegin()) - 1;
    };
    // A line counts whose beginning is alike with the line end before it, and so is its end.
    const auto count = static_cast<int>(m_lines.size());
    m_front = lineOf(atStart);
    m_back = count - 1 - lineOf(m_text.text.size() - atEnd);
    const int lines = std::min(count, m_document.blockCount());
    m_back = std::clamp(m_back, 0, std::max(0, lines - std::max(1, m_front)));
    return keepsMany();
}

bool BoxLines::keepsMany()
{
    const bool areMany = m_front + m_back >= m_document.blockCount() / 2;
    if (!areMany)
        m_front = m_back = 0;
    return areMany;
}

// Formats that nothing shows any more go with a new beginning only.
bool BoxLines::mayKeep()
{
    constexpr qsizetype mostFormats = 1000;
    return !m_document.isEmpty() && !m_formats.hasFonts() &&
           m_document.allFormats().size() <= mostFormats && beginsPlain(m_document.firstBlock());
}

void BoxLines::findLines()
{
    const QStringView text = m_text.text;
    Line line;
    for (;;) {
        const qsizetype end = text.indexOf(lineEnding, line.start);
        line.length = (end < 0 ? text.size() : end) - line.start;
        while (line.run < m_text.runs.size() &&
               line.runStart + m_text.runs[line.run].length <= line.start)
            line.runStart += m_text.runs[line.run++].length;
        m_lines.append(line);
        if (end < 0)
            return;
        line.start = end + lineEnding.size();
    }
}

// The line end before it has the format that a line end gets here.
bool BoxLines::beginsPlain(const QTextBlock &block)
{
    return block.charFormatIndex() == formatOf(ColouredText::automatic) &&
           block.blockFormat().isEmpty();
}

bool BoxLines::isSame(const QTextBlock &block, const Line &line)
{
    const QStringView wanted = QStringView(m_text.text).sliced(line.start, line.length);
    return block.length() - 1 == wanted.size() && BoxMarks::isPlain(wanted) &&
           block.text() == wanted && beginsPlain(block) && hasColours(block, line);
}

bool BoxLines::hasColours(const QTextBlock &block, const Line &line)
{
    qsizetype run = line.run;
    qsizetype left = line.runStart - line.start; // of the run, in the line
    if (run < m_text.runs.size())
        left += m_text.runs[run].length;
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextFragment fragment = it.fragment();
        qsizetype length = fragment.length();
        while (length > 0) {
            while (left == 0 && run + 1 < m_text.runs.size())
                left = m_text.runs[++run].length;
            const bool hasRun = left > 0;
            const Colour colour = hasRun ? m_text.runs[run].colour : ColouredText::automatic;
            if (fragment.charFormatIndex() != formatOf(colour))
                return false;
            const qsizetype step = hasRun ? std::min(left, length) : length;
            left -= hasRun ? step : 0;
            length -= step;
        }
    }
    return true;
}

// Matches nothing when no text has it yet.
int BoxLines::formatOf(Colour colour)
{
    if (const auto it = m_known.constFind(colour); it != m_known.cend())
        return *it;
    RtfFormat format = m_formats.base();
    format.colour = colour;
    const auto index = m_document.allFormats().indexOf(m_formats.charFormat(format));
    const int known = index < 0 ? -2 : static_cast<int>(index);
    m_known.insert(colour, known);
    return known;
}

// With the line end before the first line that is replaced.
QTextCursor BoxLines::toReplace() const
{
    const auto endOf = [](const QTextBlock &block) {
        return block.position() + block.length() - 1;
    };
    const int last = m_document.blockCount() - 1 - m_back;
    QTextCursor cursor(&m_document);
    cursor.setPosition(m_front == 0 ? 0 : endOf(m_document.findBlockByNumber(m_front - 1)));
    cursor.setPosition(endOf(m_document.findBlockByNumber(last)), QTextCursor::KeepAnchor);
    return cursor;
}

ColouredText BoxLines::replacement() const
{
    if (m_front == 0 && m_back == 0)
        return m_text;
    const Line &last = m_lines[m_lines.size() - 1 - m_back];
    const qsizetype end = last.start + last.length;
    const Line before = m_front == 0 ? Line() : m_lines[m_front - 1];
    const qsizetype start = before.start + before.length;
    ColouredText part;
    part.text = m_text.text.sliced(start, end - start);
    qsizetype runStart = before.runStart;
    for (qsizetype run = before.run; run < m_text.runs.size() && runStart < end; ++run) {
        const qsizetype runEnd = runStart + m_text.runs[run].length;
        part.appendRun(std::min(runEnd, end) - std::max(runStart, start), m_text.runs[run].colour);
        runStart = runEnd;
    }
    return part;
}

} // namespace ORVTListview
