#include "platform/BoxSink.h"

#include "platform/BoxMarks.h"

#include <algorithm>
#include <utility>

namespace ORVTListview {
namespace {

void putLines(QStringView text, const RtfFormat &format, RtfSink &sink)
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
    m_cursor.beginEditBlock();
    m_cursor.removeSelectedText();
    setFormat(m_formats.base());
}

BoxSink::~BoxSink()
{
    flush();
    m_cursor.endEditBlock();
}

void BoxSink::setFormat(const RtfFormat &format)
{
    m_current = format;
    m_format = m_formats.charFormat(format);
    RtfFormat plain = format;
    plain.colour = RtfFormat::automatic;
    plain.backColour = RtfFormat::automatic;
    m_plainFormat = m_formats.charFormat(plain);
}

void BoxSink::append(QStringView text, const QTextCharFormat &format)
{
    if (m_chunk.isEmpty())
        m_chunkFormat = m_plainFormat;
    if (format != m_chunkFormat)
        m_spans.append({static_cast<int>(m_chunk.size()), static_cast<int>(text.size()), format});
    m_chunk += text;
}

void BoxSink::text(QStringView text, const RtfFormat &format)
{
    if (format != m_current)
        setFormat(format);
    if (BoxMarks::isPlain(text)) {
        append(text, m_format);
    } else {
        flush();
        BoxMarks::insert(m_cursor, text, m_format);
    }
}

void BoxSink::lineEnd()
{
    constexpr qsizetype enough = 1024;
    append(u"\n", m_plainFormat);
    if (m_chunk.size() >= enough)
        flush();
}

void BoxSink::flush()
{
    const int start = m_cursor.position();
    m_cursor.insertText(m_chunk, m_chunkFormat);
    QTextCursor cursor = m_cursor;
    for (const Span &span : std::as_const(m_spans)) {
        cursor.setPosition(start + span.start);
        cursor.setPosition(start + span.start + span.length, QTextCursor::KeepAnchor);
        cursor.setCharFormat(span.format);
    }
    m_chunk.clear();
    m_spans.clear();
}

void putColoured(const ColouredText &text, const RtfFormat &format, RtfSink &sink)
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
        putLines(whole.sliced(begin, end - begin), current, sink);
        begin = end;
    }
    current.colour = RtfFormat::automatic;
    putLines(whole.sliced(begin), current, sink);
}

} // namespace ORVTListview
