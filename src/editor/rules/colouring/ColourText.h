#pragma once

#include "base/ColouredText.h"
#include "base/HouseExport.h"
#include "editor/rules/colouring/ColourEngine.h"

#include <optional>

namespace ORVTListview {

// Program text as RTF. The text goes in without escaping, on purpose: a "\", "{"
// or "}" in it changes the document's meaning. What must survive as it is goes
// through colouredText instead.
ORVT_HOUSE_EXPORT QString ColourText(const ColourEngine &engine, QStringView Text,
                                     const QString &Header, bool FirstLineIsComment);
QString ColourLine(const ColourEngine &engine, QStringView Line);
QString ColourToken(const ColourEngine &engine, QStringView Token);

// The same text and colours as the document that ColourText gives, without the
// detour of writing and reading it. The text's lines end in CR LF.
ORVT_HOUSE_EXPORT ColouredText colouredText(const ColourEngine &engine, QStringView text,
                                            bool firstLineIsComment,
                                            const RichTextSettings &settings);

// What that makes of some lines of a text. Blanks before their first word go on in the colour
// of the last word before them.
struct ColouredPart
{
    ColouredText lines;
    qsizetype beforeWord = 0; // as a whole when there is no word
    std::optional<Colour> lastWord;

    void goOnIn(Colour colour);
};
ColouredPart colouredPart(const ColourEngine &engine, QStringView lines, bool firstLineIsComment,
                          const RichTextSettings &settings);

} // namespace ORVTListview
