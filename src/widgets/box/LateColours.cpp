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
#include <optional>
#include <utility>

namespace ORVTListview {
namespace {

constexpr int noMark = -1; // what the toolkit gives a new line

bool isWithoutFormat(const QTextBlock &block)
{
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        if (!it.fragment().charFormat().isEmpty())
            return false;
    }
    return true;
}

struct FormatPiece
{
    int from = 0;
    int to = 0;
    QTextCharFormat format;
};

void setFormats(QTextCursor &cursor, const QList<FormatPiece> &pieces)
{
    for (const FormatPiece &piece : pieces) {
        cursor.setPosition(piece.from);
        cursor.setPosition(piece.to, QTextCursor::KeepAnchor);
        cursor.setCharFormat(piece.format);
    }
}

// Leaves what tells which characters stand there, and nothing else.
void stripFormats(QTextCursor &cursor, const QTextBlock &block)
{
    QList<FormatPiece> pieces;
    int start = block.position();
    for (auto it = block.begin(); !it.atEnd(); ++it) {
        const QTextCharFormat format = it.fragment().charFormat();
        const QTextCharFormat kept = BoxMarks::onlyMarks(format);
        const int end = start + it.fragment().length();
        if (format != kept)
            pieces.append({start, end, kept});
        start = end;
    }
    setFormats(cursor, pieces);
}

} // namespace

// Lines that are coloured together. The text stays, so nobody is told of a change but the
// layout, and the document is as modified as it was.
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

bool LateColours::suits(QStringView text)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c > u'\r' && c != QChar::ParagraphSeparator)
            continue;
        const bool isCrLf = c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        if (isCrLf)
            ++i;
        else if (c.isNull() || c == u'\r' || c == u'\n' || c == QChar::ParagraphSeparator)
            return false;
    }
    return true;
}

void LateColours::begin(const ColouredText &text, Lines lines, Allowed &permission)
{
    stop();
    m_text = text;
    m_isWaiting = true;
    findLines();
    markAll();
    permission.m_serial = ++m_serial;
    m_left = static_cast<int>(m_lines.size());
    m_hasFormerLines = lines == Lines::Former;
    m_view = -1;
    m_timer.start(0);
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

// Found out in one go through the line, and then set: what is set cuts it into other
// pieces.
void LateColours::colourPlain(QTextCursor &cursor, const QTextBlock &block,
                              const QList<ColouredText::Run> &runs)
{
    QList<FormatPiece> pieces;
    auto it = block.begin();
    int start = block.position(); // of the fragment, which would look for it
    FormatPiece piece{start, start, {}};
    for (const ColouredText::Run &run : runs) {
        piece.from = piece.to;
        piece.to += static_cast<int>(run.length);
        piece.format = run.colour < 0 ? QTextCharFormat() : formatOf(run.colour);
        bool isRight = true;
        while (!it.atEnd() && start < piece.to) {
            isRight = isRight && it.fragment().charFormat() == piece.format;
            const int end = start + it.fragment().length();
            if (end > piece.to)
                break; // the rest of it is in the next run
            start = end;
            ++it;
        }
        if (!isRight)
            pieces.append(piece);
    }
    setFormats(cursor, pieces);
}

void LateColours::colour(QTextCursor &cursor, QTextBlock &block)
{
    const auto line = static_cast<std::size_t>(block.userState() - m_firstMark);
    block.setUserState(noMark);
    --m_left;
    const ColouredText wanted{m_text.text.sliced(m_lines[line].start, lengthOf(line)),
                              runsOf(line)};
    QString shown = block.text();
    BoxMarks::restore(block, shown);
    if (shown != wanted.text)
        return; // changed past the box
    const bool isNew = !m_hasFormerLines;
    const bool isPlain = BoxMarks::isPlain(wanted.text) && (!isNew || isWithoutFormat(block));
    if (!block.charFormat().isEmpty()) {
        cursor.setPosition(block.position());
        cursor.setBlockCharFormat({});
    }
    if (isPlain)
        return colourPlain(cursor, block, wanted.runs);
    if (!isNew)
        stripFormats(cursor, block);
    BoxColours::apply(m_document, m_boxText, m_boxText.toBox(block.position()), wanted);
}

void LateColours::give(const QList<Range> &ranges)
{
    if (!m_isWaiting)
        return;
    std::optional<Group> group;
    for (const Range &range : ranges) {
        const int end = std::min(range.to, m_document.characterCount() - 1);
        QTextBlock block = m_document.findBlock(range.from);
        for (; block.isValid() && block.position() <= end; block = block.next()) {
            if (!waits(block))
                continue;
            if (!group)
                group.emplace(m_document);
            colour(group->cursor, block);
        }
    }
}

void LateColours::giveAround(const QList<Range> &selections)
{
    if (!m_isWaiting)
        return;
    QList<Range> ranges;
    for (const Range &selection : selections) {
        for (const int place : {selection.from, selection.to}) {
            const QTextBlock block = m_document.findBlock(place);
            const QTextBlock before = block.previous().isValid() ? block.previous() : block;
            ranges.append({before.position(), block.position() + block.length()});
        }
    }
    give(ranges);
}

void LateColours::giveAround(const QTextCursor &selection)
{
    giveAround({{selection.selectionStart(), selection.selectionEnd()}});
}

void LateColours::giveAll()
{
    if (!m_isWaiting)
        return;
    beginRoundAt(0);
    giveUntil([] { return false; });
}

// What was passed on the way to another line says nothing of the lines from this one on.
void LateColours::beginRoundAt(int line)
{
    m_next = line;
    m_passed = 0;
    m_changes = m_boxText.changeCount();
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

// A change may have taken lines that wait past the one looked at next.
void LateColours::followDocument()
{
    const int view = m_firstShown ? m_firstShown() : 0;
    if (view != std::exchange(m_view, view))
        beginRoundAt(view);
    else if (m_boxText.changeCount() != m_changes)
        beginRoundAt(m_next);
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
