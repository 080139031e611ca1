#include "editor/rules/language/WordClass.h"

#include "shared/points/PictureNumbers.h"

#include <algorithm>
#include <array>

namespace ORVTListview {
namespace {

constexpr qint32 noType = -1;

struct ClassLook
{
    ColourIndex colour{};
    PictureNumber picture{};
    qint32 type = noType; // of the points whose names are of this class
};

// In the order of WordClass.
constexpr std::array<ClassLook, 11> looks{{
    {AutomaticColour, NoPicture},
    {VariableColour, VariablePicture, dsVariable},
    {ConstantColour, ConstantPicture, dsConst},
    {InputColour, InputPicture, dsInput},
    {OutputColour, OutputPicture, dsOutput},
    {NviColour, NviPicture, dsNvi},
    {ReservedWordColour, KeywordPicture},
    {ReservedWordColour, TimeWordPicture},
    {ReservedWordColour, FunctionPicture},
    {ReservedWordColour, FanInPicture},
    {CommentColour, NoPicture},
}};
static_assert(looks.size() == static_cast<std::size_t>(WordClass::Comment) + 1);

// In the order of ColourIndex, from 1.
constexpr std::array<Colour RichTextSettings::*, colourSlots> slotColours{
    &RichTextSettings::BackColor,     &RichTextSettings::CommentColor,
    &RichTextSettings::ConstantColor, &RichTextSettings::InputColor,
    &RichTextSettings::OutputColor,   &RichTextSettings::ReservedWordColor,
    &RichTextSettings::VariableColor, &RichTextSettings::nviFPAColor,
};

// The class of points that has this value there; Other for none.
template <typename Value>
WordClass pointClass(Value ClassLook::*field, qint32 value)
{
    const auto found = std::find_if(looks.begin(), looks.end(), [=](const ClassLook &look) {
        return look.type != noType && look.*field == value;
    });
    return found == looks.end() ? WordClass::Other : static_cast<WordClass>(found - looks.begin());
}

} // namespace

Colour colourOfSlot(int slot, const RichTextSettings &settings)
{
    const bool isSlot = slot >= 1 && slot <= colourSlots;
    return isSlot ? settings.*slotColours[static_cast<std::size_t>(slot) - 1] : 0;
}

ClassStyle styleOf(WordClass wordClass, const RichTextSettings &settings)
{
    const ClassLook &look = looks[static_cast<std::size_t>(wordClass)];
    return {look.colour, colourOfSlot(look.colour, settings), look.picture};
}

WordClass classOfColour(qint32 colour)
{
    return pointClass(&ClassLook::colour, colour);
}

void ClassStyleForType(qint32 TypeIndex, const RichTextSettings &settings, ClassStyle &Style)
{
    const WordClass wordClass = pointClass(&ClassLook::type, TypeIndex);
    if (wordClass != WordClass::Other)
        Style = styleOf(wordClass, settings);
}

} // namespace ORVTListview
