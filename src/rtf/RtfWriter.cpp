#include "rtf/RtfWriter.h"

#include "rtf/RtfEscapes.h"
#include "rtf/RtfTables.h"

using namespace Qt::StringLiterals;

namespace ORVTListview {
namespace {

// What follows stands on a line of its own; a blank there is text.
constexpr QLatin1StringView lineEndWord("\\par\r\n");

} // namespace

RtfWriter::RtfWriter(const RtfFormat &base)
    : m_base(base)
{
    fontIndex(base.fontName);
}

void RtfWriter::text(QStringView text, const RtfFormat &format)
{
    if (text.contains(u'\0'))
        return this->text(text.toString().remove(u'\0'), format);
    if (text.isEmpty())
        return;
    if (!m_isStarted)
        start(format);
    else
        change(format);
    if (m_isBehindBlank && text.front() == u' ')
        m_body += "{}"_L1;
    appendRtfText(m_body, text);
    m_isBehindBlank = text.back() == u' ';
}

void RtfWriter::lineEnd()
{
    if (!m_isStarted)
        start(m_base);
    m_body += lineEndWord;
    m_isBehindBlank = false;
}

QString RtfWriter::finish()
{
    if (!m_isStarted)
        start(m_base);
    keepLastLineEnds();
    QString document;
    document.reserve(m_body.size() + 256);
    writeFontTable(document);
    writeColourTable(document);
    document += "\\viewkind4\\uc1\\pard"_L1;
    document += m_body;
    document += "}\r\n"_L1;
    return document;
}

void RtfWriter::keepLastLineEnds()
{
    qsizetype count = 0;
    for (; m_body.endsWith(lineEndWord); ++count)
        m_body.chop(lineEndWord.size());
    for (; count > 0; --count)
        m_body += "\\line\r\n"_L1;
}

RtfWriter::Settings RtfWriter::settingsOf(const RtfFormat &format)
{
    const auto either = [](Colour stated, Colour base) {
        return stated == RtfFormat::automatic ? base : stated;
    };
    return {.font = format.fontName.isEmpty() ? 0 : fontIndex(format.fontName),
            .halfPoints = format.halfPoints > 0 ? format.halfPoints : m_base.halfPoints,
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
qsizetype RtfWriter::colourIndex(Colour colour)
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
    if (m_body.size() == before)
        return;
    m_body += u' ';
    m_isBehindBlank = false;
}

void RtfWriter::writeWord(QLatin1StringView word, qint64 number)
{
    m_body += u'\\';
    m_body += word;
    appendRtfNumber(m_body, number);
}

void RtfWriter::writeFlag(QLatin1StringView word, bool before, bool now)
{
    if (before == now)
        return;
    m_body += u'\\';
    m_body += word;
    if (!now)
        m_body += u'0';
}

void RtfWriter::writeFontTable(QString &document) const
{
    document += "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl"_L1;
    for (qsizetype i = 0; i < m_fonts.size(); ++i) {
        document += "{\\f"_L1 + QString::number(i) + "\\fnil\\fcharset0 "_L1;
        appendRtfFontName(document, m_fonts[i]);
        document += ";}"_L1;
    }
    document += "}\r\n"_L1;
}

void RtfWriter::writeColourTable(QString &document) const
{
    if (m_colours.isEmpty())
        return;
    document += "{\\colortbl ;"_L1;
    for (const Colour colour : m_colours)
        document += rtfColourEntry(colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
    document += "}\r\n"_L1;
}

} // namespace ORVTListview
