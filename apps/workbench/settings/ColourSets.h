#pragma once

#include <ORVTListview/Types.h>

#include <QtCore/QString>

namespace ORVTListview {

// Where the colours of the program's words come from.
enum class ColourSet {
    Project, // what the project names
    Light,
    Dark,
    HighContrast,
    Own, // what the user has chosen
};

// A class of words, as the settings hold its colour. Colours are as Colour.h says.
using ClassColour = qint32 RichTextSettings::*;

// The eight classes, in the order in which they are shown.
inline constexpr ClassColour classColours[] = {
    &RichTextSettings::ReservedWordColor, &RichTextSettings::VariableColor,
    &RichTextSettings::ConstantColor,     &RichTextSettings::InputColor,
    &RichTextSettings::OutputColor,       &RichTextSettings::nviFPAColor,
    &RichTextSettings::nvoFPAColor,       &RichTextSettings::CommentColor,
};

// The colours of a ready set, their ground included: eight that differ, each read well on
// it. Only for Light, Dark and HighContrast.
RichTextSettings readyColours(ColourSet set);

// Puts the nine colours into settings whose font stays.
void takeColours(RichTextSettings &settings, const RichTextSettings &colours);

} // namespace ORVTListview
