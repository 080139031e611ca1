#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

#include <functional>
#include <optional>

namespace ORVTListview {

struct SplitColours
{
    qint32 Red = 0;
    qint32 Green = 0;
    qint32 Blue = 0;

    friend bool operator==(const SplitColours &, const SplitColours &) = default;
};

// The three parts of a colour. The arithmetic is signed and truncates toward zero,
// so a system colour, being negative, gives negative parts. It never fails; the type
// leaves room for a splitter that can.
ORVT_HOUSE_EXPORT std::optional<SplitColours> SplitColour(Colour colour);

using ColourSplitter = std::function<std::optional<SplitColours>(Colour)>;

// The RTF colour table of the settings. A colour that cannot be split is written
// black and adds a line to ErrorText.
QString BuildColourTable(const RichTextSettings &Settings, QString &ErrorText,
                         const ColourSplitter &splitter = SplitColour);

QString defaultColourTable();

// The settings whose colour table is the default one.
ORVT_HOUSE_EXPORT RichTextSettings defaultColours();

// What a reader of the colour table makes of a colour: its parts kept within 0 to
// 255. System colours are not resolved.
ORVT_HOUSE_EXPORT Colour shownColour(Colour colour);

} // namespace ORVTListview
