#include "widgets/box/BoxSink.h"

#include "widgets/box/BoxMarks.h"

#include <QtGui/QTextDocument>

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
    if (m_cursor.document()->isEmpty())
        m_formats.forgetFonts();
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
    if (plain == m_plain)
        return;
    m_plain = plain;
    m_plainFormat = m_formats.charFormat(plain);
}

void BoxSink::text(QStringView text, const RtfFormat &format)
{
    if (format != m_current) {
        flush();
        setFormat(format);
    }
    if (BoxMarks::isPlain(text)) {
        m_waiting += text;
    } else {
        flush();
        BoxMarks::insert(m_cursor, text, m_format);
    }
}

void BoxSink::lineEnd()
{
    flush();
    m_cursor.insertBlock(m_lineFormat, m_plainFormat);
}

void BoxSink::flush()
{
    if (m_waiting.isEmpty())
        return;
    m_cursor.insertText(m_waiting, m_format);
    m_waiting.resize(0); // keeps its memory
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
