#include "widgets/box/LateColours.h"

#include "base/TextSearch.h"
#include "widgets/box/BoxColours.h"
#include "widgets/box/BoxFormats.h"
#include "widgets/box/BoxLayout.h"
#include "widgets/box/BoxMarks.h"
#include "widgets/box/BoxText.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>

#include <algorithm>
#include <limits>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int noMark = -1; // what the toolkit gives a new line

// Whether the text between two places of a line has a format and no other. A fragment
// would look for its position in the document.
bool hasFormat(const QTextBlock &block, int from, int to, const QTextCharFormat &format)
{
    int start = block.position();
    for (auto it = block.begin(); !it.atEnd() && start < to; ++it) {
        const int end = start + it.fragment().length();
        if (end > from && it.fragment().charFormat() != format)
            return false;
        start = end;
    }
    return true;
}

} // namespace

// Lines next to each other that are coloured together. The text stays, so nobody is told
// of a change but the layout, and the document is as modified as it was.
class LateColours::Group
{
public:
    explicit Group(QTextDocument &document)
        : cursor(&document)
        , m_document(document)
        , m_isModified(document.isModified())
        , m_quiet(&document)
        , m_layout(qobject_cast<BoxLayout *>(document.documentLayout()))
    {
        if (m_layout)
            m_layout->setOnlyColours(true);
        cursor.beginEditBlock();
    }
    ~Group()
    {
        cursor.endEditBlock();
        if (m_layout)
            m_layout->setOnlyColours(false);
        m_document.setModified(m_isModified);
    }
    Q_DISABLE_COPY_MOVE(Group) // one edit block

    QTextCursor cursor;

private:
    QTextDocument &m_document;
    bool m_isModified;
    QSignalBlocker m_quiet;
    BoxLayout *m_layout;
};

LateColours::LateColours(QTextDocument &document, const BoxText &text)
    : QObject(&document)
    , m_document(document)
    , m_boxText(text)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LateColours::goOn);
}

LateColours &LateColours::of(const QTextDocument &document)
{
    return *document.findChild<LateColours *>({}, Qt::FindDirectChildrenOnly);
}

bool LateColours::begin(const ColouredText &text, Lines lines)
{
    stop();
    m_text = text;
    m_isWaiting = true;
    findLines();
    if (static_cast<int>(m_lines.size()) != m_document.blockCount()) {
        stop();
        return false;
    }
    markAll();
    ++m_serial;
    m_left = m_document.blockCount();
    m_hasFormerLines = lines == Lines::Former;
    m_next = m_passed = 0;
    m_view = -1;
    m_timer.start(0);
    return true;
}

void LateColours::stop()
{
    if (!std::exchange(m_isWaiting, false))
        return;
    m_text = {};
    m_lines = {};
    m_formats.clear();
    m_timer.start(0); // to tell of it
}

int LateColours::percentDone() const
{
    const auto lines = static_cast<qint64>(m_lines.size());
    return m_isWaiting ? static_cast<int>((lines - m_left) * 100 / lines) : 100;
}

void LateColours::findLines()
{
    const QStringView text = m_text.text;
    const QList<ColouredText::Run> &runs = m_text.runs;
    Line line;
    m_lines.reserve(static_cast<std::size_t>(m_document.blockCount()));
    for (qsizetype end = 0; end >= 0; line.start = static_cast<int>(end) + 2) {
        while (line.run < runs.size() && line.runStart + runs[line.run].length <= line.start)
            line.runStart += static_cast<int>(runs[line.run++].length);
        m_lines.push_back(line);
        end = findCrLf(text, line.start);
    }
}

// Marks of former texts may still be there, so none is used twice.
void LateColours::markAll()
{
    const int count = m_document.blockCount();
    const bool isFull = m_firstMark > std::numeric_limits<int>::max() - 2 * count;
    m_firstMark = isFull ? 0 : m_firstMark + m_lastCount;
    m_lastCount = count;
    int mark = m_firstMark;
    for (QTextBlock block = m_document.firstBlock(); block.isValid(); block = block.next())
        block.setUserState(mark++);
}

bool LateColours::waits(const QTextBlock &block) const
{
    const int mark = block.userState();
    return mark >= m_firstMark && mark - m_firstMark < static_cast<int>(m_lines.size());
}

int LateColours::lengthOf(std::size_t line) const
{
    const bool isLast = line + 1 == m_lines.size();
    const int end = isLast ? static_cast<int>(m_text.text.size()) : m_lines[line + 1].start - 2;
    return end - m_lines[line].start;
}

QList<ColouredText::Run> LateColours::runsOf(std::size_t line) const
{
    const Line &begin = m_lines[line];
    const int end = begin.start + lengthOf(line);
    ColouredText result;
    int start = begin.runStart;
    for (qsizetype run = begin.run; run < m_text.runs.size() && start < end; ++run) {
        const int next = start + static_cast<int>(m_text.runs[run].length);
        result.appendRun(std::min(next, end) - std::max(start, begin.start),
                         m_text.runs[run].colour);
        start = next;
    }
    return result.runs;
}

const QTextCharFormat &LateColours::formatOf(Colour colour)
{
    QTextCharFormat &format = m_formats[colour];
    if (format.isEmpty())
        BoxFormats::setColour(format, colour);
    return format;
}

void LateColours::colourPlain(QTextCursor &cursor, const QTextBlock &block,
                              const QList<ColouredText::Run> &runs)
{
    int start = block.position();
    for (const ColouredText::Run &run : runs) {
        const int end = start + static_cast<int>(run.length);
        const QTextCharFormat format = run.colour < 0 ? QTextCharFormat() : formatOf(run.colour);
        if (!hasFormat(block, start, end, format)) {
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            cursor.setCharFormat(format);
        }
        start = end;
    }
}

void LateColours::colour(QTextCursor &cursor, QTextBlock &block)
{
    const auto line = static_cast<std::size_t>(block.userState() - m_firstMark);
    block.setUserState(noMark);
    --m_left;
    if (block.length() - 1 != lengthOf(line))
        return; // changed past the box
    if (!block.charFormat().isEmpty()) {
        cursor.setPosition(block.position());
        cursor.setBlockCharFormat({});
    }
    const ColouredText wanted{m_text.text.sliced(m_lines[line].start, lengthOf(line)),
                              runsOf(line)};
    const bool isPlain = BoxMarks::isPlain(wanted.text);
    const int start = block.position();
    if (isPlain && (m_hasFormerLines || hasFormat(block, start, start + block.length(), {})))
        return colourPlain(cursor, block, wanted.runs);
    BoxColours::apply(m_document, m_boxText, m_boxText.toBox(block.position()), wanted);
}

void LateColours::give(int from, int to)
{
    if (!m_isWaiting)
        return;
    QTextBlock block = m_document.findBlock(from);
    const QTextBlock last = m_document.findBlock(std::min(to, m_document.characterCount() - 1));
    const int end = last.blockNumber();
    for (int number = block.blockNumber(); number <= end && block.isValid(); ++number) {
        if (waits(block)) {
            Group group(m_document);
            for (; number <= end && block.isValid() && waits(block); ++number) {
                colour(group.cursor, block);
                block = block.next();
            }
        }
        block = block.next();
    }
}

void LateColours::giveAround(const QTextCursor &selection)
{
    if (!m_isWaiting)
        return;
    const auto around = [this](int place) {
        const QTextBlock block = m_document.findBlock(place);
        const QTextBlock before = block.previous().isValid() ? block.previous() : block;
        give(before.position(), block.position() + block.length());
    };
    around(selection.selectionStart());
    around(selection.selectionEnd());
}

void LateColours::giveAll()
{
    if (m_isWaiting)
        giveUntil([] { return false; });
}

// Whether there is time left.
bool LateColours::colourFrom(QTextBlock block, const std::function<bool()> &isTimeUp)
{
    Group group(m_document);
    for (; block.isValid() && waits(block); block = block.next()) {
        colour(group.cursor, block);
        ++m_next;
        m_passed = 0;
        if (isTimeUp())
            return false;
    }
    return true;
}

bool LateColours::passFrom(QTextBlock block, const std::function<bool()> &isTimeUp)
{
    constexpr int looks = 256; // to one at the clock
    for (; block.isValid() && !waits(block); block = block.next()) {
        ++m_next;
        if (++m_passed % looks == 0 && isTimeUp())
            return false;
    }
    return true;
}

// Down from the line where it is, then from the top. It is over when a whole round has
// met no line that waits; lines may have gone, with their marks.
bool LateColours::giveUntil(const std::function<bool()> &isTimeUp)
{
    bool hasTime = true;
    while (hasTime && m_left > 0 && m_passed <= m_document.blockCount()) {
        const QTextBlock block = m_document.findBlockByNumber(m_next);
        if (!block.isValid())
            m_next = 0;
        else if (waits(block))
            hasTime = colourFrom(block, isTimeUp);
        else
            hasTime = passFrom(block, isTimeUp);
    }
    const bool isOver = m_left == 0 || m_passed > m_document.blockCount();
    if (isOver)
        stop();
    return !isOver;
}

// Lines that came or went may have taken some that wait past the one looked at next.
void LateColours::followDocument()
{
    const int view = m_firstShown ? m_firstShown() : 0;
    if (view != m_view)
        m_view = m_next = view;
    const int count = m_document.blockCount();
    if (std::exchange(m_lineCount, count) != count)
        m_passed = 0;
}

void LateColours::goOn()
{
    if (m_isWaiting) {
        followDocument();
        const Time end = m_now() + slice;
        if (giveUntil([&] { return m_now() >= end; }))
            m_timer.start(0);
    }
    Q_EMIT progressed();
}

} // namespace ORVTListview
