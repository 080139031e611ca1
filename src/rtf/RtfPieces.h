#pragma once

#include "rtf/RtfFormat.h"
#include "rtf/RtfKeywords.h"
#include "rtf/RtfTables.h"

namespace ORVTListview {

// The character settings at a place of a document being read.
struct RtfCharacters
{
    qint32 font = RtfFontTable::none; // a position in the font table
    qint32 halfPoints = 0;
    qint32 colour = RtfFormat::automatic;
    qint32 backColour = RtfFormat::automatic;
    quint32 flags = 0; // of RtfFlag

    friend bool operator==(const RtfCharacters &, const RtfCharacters &) = default;
};

// Gathers a document's characters to pieces as long as possible and hands them to
// the sink: text that lies in one stretch of the source without being copied.
class RtfPieces
{
public:
    RtfPieces(RtfSink &sink, const RtfFontTable &fonts);

    void addSource(QStringView text, const RtfCharacters &characters);
    void addCharacter(char16_t character, const RtfCharacters &characters);
    void endLine();

    // Hands over what is gathered. Needed before the font table changes and at the
    // end.
    void flush();

private:
    void change(RtfCharacters characters);
    void copyStretch();

    RtfSink &m_sink;
    const RtfFontTable &m_fonts;
    RtfCharacters m_characters;
    RtfFormat m_format;
    QStringView m_stretch; // either this or m_copy is empty
    QString m_copy;
};

} // namespace ORVTListview
