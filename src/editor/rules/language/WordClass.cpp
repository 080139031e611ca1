#include "editor/rules/language/WordClass.h"

#include "shared/points/PictureNumbers.h"

#include <array>

namespace ORVTListview {
namespace {

struct ClassLook
{
    ColourIndex colour;
    PictureNumber picture;
};

// In the order of WordClass.
constexpr std::array<ClassLook, 11> looks{{
    {AutomaticColour, NoPicture},
    {VariableColour, VariablePicture},
    {ConstantColour, ConstantPicture},
    {InputColour, InputPicture},
    {OutputColour, OutputPicture},
    {NviColour, NviPicture},
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

// Other for a type whose names are no class of their own.
WordClass classOfType(qint32 type)
{
    switch (type) {
    case dsVariable:
        return WordClass::Variable;
    case dsConst:
        return WordClass::Constant;
    case dsInput:
        return WordClass::Input;
    case dsOutput:
        return WordClass::Output;
    case dsNvi:
        return WordClass::Nvi;
    default:
        return WordClass::Other;
    }
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

void ClassStyleForType(qint32 TypeIndex, const RichTextSettings &settings, ClassStyle &Style)
{
    const WordClass wordClass = classOfType(TypeIndex);
    if (wordClass != WordClass::Other)
        Style = styleOf(wordClass, settings);
}

} // namespace ORVTListview
