#include "rtf/RtfDump.h"

#include "rtf/RtfReader.h"

#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

namespace ORVTListview::Testing {
namespace {

class PlainText final : public RtfSink
{
public:
    void text(QStringView text, const RtfFormat &) override { all += text; }
    void lineEnd() override { all += u"\r\n"; }

    QString all = u""_s; // never null
};

QString describeColour(QLatin1StringView name, qint32 colour)
{
    return name + u' ' + QString::number(colour, 16).rightJustified(6, u'0');
}

// Printable ASCII stands for itself, the rest as in C.
QString quoted(QStringView text)
{
    QString out;
    for (const QChar c : text) {
        if (c == u'\t')
            out += u"\\t";
        else if (c == u'"' || c == u'\\')
            out += u'\\' + c;
        else if (c >= u' ' && c < u'\x7F')
            out += c;
        else
            out += u"\\u"_s + QString::number(c.unicode(), 16).rightJustified(4, u'0');
    }
    return u'"' + out + u'"';
}

} // namespace

QString describe(const RtfFormat &format)
{
    QStringList parts;
    if (!format.fontName.isEmpty())
        parts += format.fontName;
    if (format.halfPoints != 0)
        parts += QString::number(format.halfPoints);
    if (format.colour != RtfFormat::automatic)
        parts += describeColour("colour"_L1, format.colour);
    if (format.backColour != RtfFormat::automatic)
        parts += describeColour("back"_L1, format.backColour);
    if (format.bold)
        parts += u"bold"_s;
    if (format.italic)
        parts += u"italic"_s;
    if (format.underline)
        parts += u"underline"_s;
    if (format.strike)
        parts += u"strike"_s;
    return parts.join(u' ');
}

void RtfDump::text(QStringView text, const RtfFormat &format)
{
    const QString settings = describe(format);
    m_lines += quoted(text) + (settings.isEmpty() ? QString() : u"  "_s + settings) + u'\n';
}

void RtfDump::lineEnd()
{
    m_lines += u"line end\n";
}

void RtfMerger::text(QStringView text, const RtfFormat &format)
{
    if (format != m_format)
        flush();
    m_text += text;
    m_format = format;
}

void RtfMerger::lineEnd()
{
    flush();
    m_sink.lineEnd();
}

void RtfMerger::flush()
{
    if (!m_text.isEmpty())
        m_sink.text(m_text, m_format);
    m_text.clear();
}

QString plainText(QStringView rtf)
{
    PlainText text;
    readRtf(rtf, text);
    return text.all;
}

QString dump(QStringView rtf)
{
    RtfDump lines;
    readRtf(rtf, lines);
    return lines.lines();
}

} // namespace ORVTListview::Testing
