#pragma once

#include <QtCore/QStringView>

#include <string_view>

namespace ORVTListview {

// What a control word asks of the reader. N is the number behind the word, V the
// value in the keyword's own entry.
enum class RtfAction {
    AddCharacter,     // the character V
    AddUnicode,       // the UTF-16 unit N; a fallback follows
    SetFallback,      // a fallback has N characters
    EndLine,          // of the text
    SkipDestination,  // the rest of the group is no text
    ReadDestination,  // the rest of the group is part of the text around it
    PassOver,         // the rest of the group is no text but for what is shown after all
    ShowAfterAll,     // the rest of the group, inside one that is passed over, is text
    StartFontTable,   // the rest of the group describes fonts
    StartColourTable, // the rest of the group describes colours
    SetCodePage,      // N is the document's
    FixCodePage,      // V is the document's
    SetDefaultFont,   // the font N
    SetFontCharset,   // of the font being described
    SetFontCodePage,  // of the font being described
    SetRed,           // of the colour being described
    SetGreen,         // of the colour being described
    SetBlue,          // of the colour being described
    ResetCharacters,  // all character settings
    SetFont,          // the font N
    SetSize,          // N half-points
    SetColour,        // entry N of the colour table
    SetBackColour,    // entry N of the colour table
    SetFlag,          // the flag V: on, or off where N is 0
    ClearFlag,        // the flag V
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

// True for a word that says what its group is, which a reader that does not know
// it may skip.
bool isRtfDestination(RtfAction action);

// The keyword of exactly that name; null where the reader does not know it.
const RtfKeyword *findRtfKeyword(QStringView name);

} // namespace ORVTListview
