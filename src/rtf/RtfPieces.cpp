#include "rtf/RtfPieces.h"

namespace ORVTListview {

RtfPieces::RtfPieces(RtfSink &sink, const RtfFontTable &fonts)
    : m_sink(sink)
    , m_fonts(fonts)
{
}

void RtfPieces::addSource(QStringView text, const RtfCharacters &characters)
{
    change(characters);
    if (m_stretch.isEmpty() && m_copy.isEmpty()) {
        m_stretch = text;
        return;
    }
    copyStretch();
    m_copy.append(text);
}

void RtfPieces::addCharacter(char16_t character, const RtfCharacters &characters)
{
    change(characters);
    copyStretch();
    m_copy.append(QChar(character));
}

void RtfPieces::endLine()
{
    flush();
    m_sink.lineEnd();
}

void RtfPieces::flush()
{
    const QStringView text = m_stretch.isEmpty() ? QStringView(m_copy) : m_stretch;
    if (text.isEmpty())
        return;
    m_format.fontName = m_fonts.name(m_characters.font);
    m_format.halfPoints = m_characters.halfPoints;
    m_format.colour = m_characters.colour;
    m_format.backColour = m_characters.backColour;
    m_format.bold = (m_characters.flags & RtfBold) != 0;
    m_format.italic = (m_characters.flags & RtfItalic) != 0;
    m_format.underline = (m_characters.flags & RtfUnderline) != 0;
    m_format.strike = (m_characters.flags & RtfStrike) != 0;
    m_sink.text(text, m_format);
    m_stretch = {};
    if (!m_copy.isEmpty())
        m_copy.resize(0); // keeps its memory
}

void RtfPieces::change(RtfCharacters characters)
{
    characters.font = m_fonts.orDefault(characters.font);
    if (characters == m_characters)
        return;
    flush();
    m_characters = characters;
}

void RtfPieces::copyStretch()
{
    if (m_stretch.isEmpty())
        return;
    m_copy.append(m_stretch);
    m_stretch = {};
}

} // namespace ORVTListview
