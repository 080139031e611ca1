#include "widgets/box/BoxSink.h"

#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextDocument>

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

constexpr std::size_t mostKnown = 16;

void writeLines(QStringView text, const RtfFormat &format, RtfSink &sink)
{
    const QStringView lineEnd = u"\r\n";
    for (;;) {
        const qsizetype end = text.indexOf(lineEnd);
        const QStringView line = end < 0 ? text : text.first(end);
        if (!line.isEmpty())
            sink.text(line, format);
        if (end < 0)
            return;
        sink.lineEnd();
        text = text.sliced(end + lineEnd.size());
    }
}

} // namespace

BoxSink::BoxSink(QTextCursor &cursor, BoxFormats &formats)
    : m_cursor(cursor)
    , m_formats(formats)
{
    m_known.reserve(mostKnown); // what may fail comes before the edit block
    m_cursor.beginEditBlock();
    m_cursor.removeSelectedText();
    if (m_cursor.document()->isEmpty())
        m_formats.forgetFonts();
    m_current = know(m_formats.base());
}

BoxSink::~BoxSink()
{
    flush();
    m_cursor.endEditBlock();
}

// Where the format stands among the known ones, of which there are few: a colour tells
// most of them apart.
std::size_t BoxSink::know(const RtfFormat &format)
{
    for (std::size_t i = 0; i < m_known.size(); ++i) {
        if (m_known[i].stated.colour == format.colour && m_known[i].stated == format)
            return i;
    }
    if (m_known.size() + 2 > mostKnown) {
        flush();
        m_known.clear();
    }
    RtfFormat plain = format;
    plain.colour = RtfFormat::automatic;
    plain.backColour = RtfFormat::automatic;
    const bool isPlain = plain == format;
    const std::size_t plainAt = isPlain ? m_known.size() : know(plain);
    m_known.push_back({format, m_formats.charFormat(format), plainAt});
    return m_known.size() - 1;
}

void BoxSink::text(QStringView text, const RtfFormat &format)
{
    const RtfFormat &current = m_known[m_current].stated;
    if (format.colour != current.colour || format != current)
        m_current = know(format);
    if (BoxMarks::isPlain(text))
        return append(text);
    flush();
    BoxMarks::insert(m_cursor, text, m_known[m_current].format);
}

void BoxSink::lineEnd()
{
    constexpr qsizetype mostWaiting = 0x10000;
    const std::size_t plain = m_known[m_current].plain;
    if (plain != m_lineEndFormat || m_text.size() + m_lineEnds >= mostWaiting)
        flush();
    m_lineEndFormat = plain;
    m_pieces.push_back({});
    ++m_lineEnds;
}

void BoxSink::append(QStringView text)
{
    if (text.isEmpty())
        return;
    m_text += text;
    if (!m_pieces.empty() && m_pieces.back().length > 0 && m_pieces.back().format == m_current)
        m_pieces.back().length += text.size();
    else
        m_pieces.push_back({text.size(), m_current});
}

// The document keeps its pieces in a search tree, which is deep where it grows at one
// end. So the lines come first, all of them empty, and then what stands in them: each
// piece has half the way then.
void BoxSink::flush()
{
    if (m_pieces.empty())
        return;
    const int start = m_cursor.position();
    insertLineEnds();
    m_cursor.setPosition(start);
    insertText();
    m_pieces.clear();
    m_text.resize(0); // keeps its memory
    m_lineEnds = 0;
}

void BoxSink::insertLineEnds()
{
    if (m_lineEnds > 0)
        m_cursor.insertText(QString(m_lineEnds, u'\n'), m_known[m_lineEndFormat].format);
}

void BoxSink::insertText()
{
    const QChar *next = m_text.constData();
    for (const Piece &piece : m_pieces) {
        if (piece.length == 0) {
            m_cursor.setPosition(m_cursor.position() + 1);
            continue;
        }
        // The document copies it.
        m_cursor.insertText(QString::fromRawData(next, piece.length), m_known[piece.format].format);
        next += piece.length;
    }
}

void writeColoured(const ColouredText &text, const RtfFormat &format, RtfSink &sink)
{
    RtfFormat current = format;
    const QStringView whole = text.text;
    qsizetype begin = 0;
    qsizetype runEnd = 0;
    for (const ColouredText::Run &run : text.runs) {
        runEnd += run.length;
        qsizetype end = std::clamp(runEnd, begin, whole.size());
        // A line end that the runs cut in two is still one.
        if (whole.first(end).endsWith(u'\r') && whole.sliced(end).startsWith(u'\n'))
            ++end;
        current.colour = run.colour;
        writeLines(whole.sliced(begin, end - begin), current, sink);
        begin = end;
    }
    current.colour = RtfFormat::automatic;
    writeLines(whole.sliced(begin), current, sink);
}

} // namespace ORVTListview
