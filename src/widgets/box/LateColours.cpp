#include "widgets/box/LateColours.h"

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

void LateColours::begin(ColouredLines lines, Lines kind, Allowed &permission)
{
    stop();
    m_lines = std::move(lines);
    m_isWaiting = true;
    markAll();
    permission.m_serial = ++m_serial;
    m_left = m_lines.count();
    m_kind = kind;
    m_view = -1;
    m_timer.start(0);
}

void LateColours::stop()
{
    if (!m_isWaiting)
        return;
    end();
    Q_EMIT stopped();
}

void LateColours::end()
{
    m_isWaiting = false;
    m_lines = {};
    m_formats.clear();
    m_timer.start(0); // to tell of it
}

int LateColours::percentDone() const
{
    const qint64 lines = m_lines.count();
    return m_isWaiting ? static_cast<int>((lines - m_left) * 100 / lines) : 100;
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
    return mark >= m_firstMark && mark - m_firstMark < m_lines.count();
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
    const int line = block.userState() - m_firstMark;
    block.setUserState(noMark);
    --m_left;
    show(cursor, block, m_lines.at(line), m_kind);
}

void LateColours::show(QTextCursor &cursor, const QTextBlock &block, const ColouredText &wanted,
                       Lines lines)
{
    QString shown = block.text();
    BoxMarks::restore(block, shown);
    if (shown != wanted.text)
        return; // changed past the box
    const bool isNew = lines == Lines::New;
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

void LateColours::colourNow(int firstLine, const ColouredLines &lines)
{
    Group group(m_document);
    QTextBlock block = m_document.findBlockByNumber(firstLine);
    for (int line = 0; line < lines.count() && block.isValid(); ++line, block = block.next())
        show(group.cursor, block, lines.at(line), Lines::Former);
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
        end();
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
