#pragma once

#include "base/HouseExport.h"
#include <ORVTListview/Types.h>

namespace ORVTListview {

// What a word of a program is.
enum class WordClass : qint8 {
    Other, // numbers and unknown words
    Variable,
    Constant,
    Input,
    Output,
    Nvi,
    Keyword,
    TimeWord,
    Function,
    FanIn, // fan-in words and indexed names
    Comment,
};

// Indexes into the editor's RTF colour table.
enum ColourIndex : qint16 {
    AutomaticColour = 0,
    BackgroundColour,
    CommentColour,
    ConstantColour,
    InputColour,
    OutputColour,
    ReservedWordColour,
    VariableColour,
    NviColour,
};

constexpr int colourSlots = 8;

// How a class is shown. ImageIndex 0: no picture.
struct ClassStyle
{
    qint16 ColourIndex = AutomaticColour;
    ORVTListview::Colour Colour = 0;
    qint16 ImageIndex = 0;

    friend bool operator==(const ClassStyle &, const ClassStyle &) = default;
};

ClassStyle styleOf(WordClass wordClass, const RichTextSettings &settings);

// The class of the points that have this colour; Other for none.
WordClass classOfColour(qint32 colour);

// The style of a point type's names. For types whose names are no class of their
// own Style is left as it is.
ORVT_HOUSE_EXPORT void ClassStyleForType(qint32 TypeIndex, const RichTextSettings &settings,
                                         ClassStyle &Style);

// The colour that a slot of the RTF colour table takes from the settings; slot
// runs from 1 to colourSlots.
ORVT_HOUSE_EXPORT Colour colourOfSlot(int slot, const RichTextSettings &settings);

} // namespace ORVTListview
