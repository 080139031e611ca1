#include "platform/RtfWriter.h"

#include "platform/RtfTables.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

bool isPlain(QChar c)
{
    return c >= u' ' && c < u'\x80' && c != u'\\' && c != u'{' && c != u'}';
}

// Every control word written here ends in a character that is not part of the
// text, so that no blank or digit of the text is taken for its own.
void appendEscaped(QString &out, QChar c)
{
    if (c == u'\0')
        return;
    if (c == u'\t')
        out += "\\tab "_L1;
    else if (c < u' ')
        out += "\\'"_L1 + QString::number(c.unicode(), 16).rightJustified(2, u'0');
    else if (c < u'\x80')
        out += u'\\' + c;
    else
        out += "\\u"_L1 + QString::number(static_cast<qint16>(c.unicode())) + u'?';
}

void appendText(QString &out, QStringView text)
{
    while (!text.isEmpty()) {
        const auto end = std::find_if_not(text.cbegin(), text.cend(), isPlain);
        const qsizetype length = end - text.cbegin();
        out += text.first(length);
        if (length < text.size())
            appendEscaped(out, *end);
        text = text.sliced(std::min(length + 1, text.size()));
    }
}

// A ";" of the name itself must not end the table's entry.
void appendFontName(QString &out, const QString &name)
{
    for (const QChar c : name) {
        if (c == u';')
            out += "\\'3b"_L1;
        else
            appendText(out, QStringView(&c, 1));
    }
}

} // namespace

RtfWriter::RtfWriter(const RtfFormat &base)
    : m_base(base)
{
    fontIndex(base.fontName);
}

void RtfWriter::text(QStringView text, const RtfFormat &format)
{
    if (text.isEmpty())
        return;
    if (!m_isStarted)
        start(format);
    else
        change(format);
    appendText(m_body, text);
}

void RtfWriter::lineEnd()
{
    if (!m_isStarted)
        start(m_base);
    m_body += "\\par\r\n"_L1;
}

QString RtfWriter::finish()
{
    if (!m_isStarted)
        start(m_base);
    QString document;
    document.reserve(m_body.size() + 256);
    writeFontTable(document);
    writeColourTable(document);
    document += "\\viewkind4\\uc1\\pard"_L1 + m_body + "}\r\n"_L1;
    return document;
}

RtfWriter::Settings RtfWriter::settingsOf(const RtfFormat &format)
{
    const auto either = [](qint32 stated, qint32 base) {
        return stated == RtfFormat::automatic ? base : stated;
    };
    return {.font = format.fontName.isEmpty() ? 0 : fontIndex(format.fontName),
            .halfPoints = format.halfPoints ? format.halfPoints : m_base.halfPoints,
            .colour = colourIndex(either(format.colour, m_base.colour)),
            .backColour = colourIndex(either(format.backColour, m_base.backColour)),
            .bold = format.bold,
            .italic = format.italic,
            .underline = format.underline,
            .strike = format.strike};
}

qsizetype RtfWriter::fontIndex(const QString &name)
{
    const auto known = m_fontIndexes.constFind(name);
    if (known != m_fontIndexes.cend())
        return *known;
    const qsizetype index = m_fonts.size();
    if (index == rtfMaximumTableEntries)
        return 0;
    m_fonts.append(name);
    m_fontIndexes.insert(name, index);
    return index;
}

// Entry 0 of the table is the automatic colour.
qsizetype RtfWriter::colourIndex(qint32 colour)
{
    if (colour == RtfFormat::automatic)
        return 0;
    const auto known = m_colourIndexes.constFind(colour);
    if (known != m_colourIndexes.cend())
        return *known;
    const qsizetype index = m_colours.size() + 1;
    if (index == rtfMaximumTableEntries)
        return 0;
    m_colours.append(colour);
    m_colourIndexes.insert(colour, index);
    return index;
}

// The default font is stated once more, for those who take these settings out.
void RtfWriter::start(const RtfFormat &format)
{
    m_isStarted = true;
    m_format = format;
    const Settings settings = settingsOf(format);
    m_settings.font = -1;
    writeChanges(settings);
}

void RtfWriter::change(const RtfFormat &format)
{
    if (format == m_format)
        return;
    m_format = format;
    writeChanges(settingsOf(format));
}

void RtfWriter::writeChanges(const Settings &settings)
{
    const qsizetype before = m_body.size();
    if (m_settings.halfPoints != 0 && settings.halfPoints == 0) {
        m_body += "\\plain"_L1; // nothing else takes a size back
        m_settings = {};
    }
    if (settings.colour != m_settings.colour)
        writeWord("cf"_L1, settings.colour);
    if (settings.backColour != m_settings.backColour)
        writeWord("highlight"_L1, settings.backColour);
    writeFlag("b"_L1, m_settings.bold, settings.bold);
    writeFlag("i"_L1, m_settings.italic, settings.italic);
    if (settings.underline != m_settings.underline)
        m_body += settings.underline ? "\\ul"_L1 : "\\ulnone"_L1;
    writeFlag("strike"_L1, m_settings.strike, settings.strike);
    if (settings.font != m_settings.font)
        writeWord("f"_L1, settings.font);
    if (settings.halfPoints != m_settings.halfPoints)
        writeWord("fs"_L1, settings.halfPoints);
    m_settings = settings;
    if (m_body.size() != before)
        m_body += u' ';
}

void RtfWriter::writeWord(QLatin1StringView word, qint64 number)
{
    m_body += u'\\' + word + QString::number(number);
}

void RtfWriter::writeFlag(QLatin1StringView word, bool before, bool now)
{
    if (before == now)
        return;
    m_body += u'\\' + word;
    if (!now)
        m_body += u'0';
}

void RtfWriter::writeFontTable(QString &document) const
{
    document += "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl"_L1;
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        document += "{\\f"_L1 + QString::number(i) + "\\fnil\\fcharset0 "_L1;
        appendFontName(document, m_fonts[i]);
        document += ";}"_L1;
    }
    document += "}\r\n"_L1;
}

void RtfWriter::writeColourTable(QString &document) const
{
    if (m_colours.isEmpty())
        return;
    document += "{\\colortbl ;"_L1;
    for (const qint32 colour : m_colours)
        document += u"\\red%1\\green%2\\blue%3;"_s.arg(colour & 0xFF)
                        .arg(colour >> 8 & 0xFF)
                        .arg(colour >> 16 & 0xFF);
    document += "}\r\n"_L1;
}

} // namespace ORVTListview
