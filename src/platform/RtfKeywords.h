#pragma once

#include <QtCore/QStringView>

#include <string_view>

namespace ORVTListview {

// What a control word asks of the reader. "N" is the number behind the word,
// "value" the number in the keyword's own entry.
enum class RtfAction {
    AddCharacter,    // the character "value"
    AddUnicode,      // the UTF-16 unit N, with a fallback behind it
    SetFallback,     // a fallback has N characters
    EndLine,         //
    SkipBinary,      // N characters of data follow
    SkipDestination, // the rest of the group is no text
    StartFontTable,  //
    StartColourTable,
    SetCodePage,     // of the document: N
    FixCodePage,     // of the document: "value"
    SetDefaultFont,  // the font N
    SetFontCharset,  // of the font being described
    SetFontCodePage, // of the font being described
    SetRed,          // of the colour being described
    SetGreen,        //
    SetBlue,         //
    ResetCharacters, // all character settings
    SetFont,         // the font N
    SetSize,         // N half-points
    SetColour,       // the colour table's entry N
    SetBackColour,   //
    SetFlag,         // the flag "value": on, or off where N is 0
    ClearFlag,       // the flag "value"
};

// Character settings that are on or off.
enum RtfFlag : quint32 {
    RtfBold = 1,
    RtfItalic = 2,
    RtfUnderline = 4,
    RtfStrike = 8,
    RtfHidden = 16,
    RtfDeleted = 32,
};

struct RtfKeyword
{
    std::string_view name;
    RtfAction action;
    quint32 value = 0;
};

// The keyword of that name, which is spelled with regard to case; null where the
// reader does not know it.
const RtfKeyword *findRtfKeyword(QStringView name);

} // namespace ORVTListview
