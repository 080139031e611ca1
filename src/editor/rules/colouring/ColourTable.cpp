#include "editor/rules/colouring/ColourTable.h"

#include "editor/rules/language/WordClass.h"
#include "rtf/RtfEscapes.h"
#include "shared/texts/TextTable.h"

#include <algorithm>
#include <array>

namespace ORVTListview {

using namespace Qt::StringLiterals;

namespace {

// What the user knows a slot by. Comments are "notes" here.
QString settingName(int slot)
{
    static const std::array names{u"BackColor"_s,     u"NoteColor"_s,   u"ConstantColor"_s,
                                  u"InputColor"_s,    u"OutputColor"_s, u"ReservedWordColor"_s,
                                  u"VariableColor"_s, u"NviFPAColor"_s};
    static_assert(names.size() == colourSlots);
    return names[static_cast<std::size_t>(slot) - 1];
}

} // namespace

std::optional<SplitColours> SplitColour(Colour colour)
{
    const qint32 low = colour % 65536;
    return SplitColours{low % 256, low / 256, colour / 65536};
}

QString BuildColourTable(const RichTextSettings &Settings, QString &ErrorText,
                         const ColourSplitter &splitter)
{
    QString entries;
    for (int slot = 1; slot <= colourSlots; ++slot) {
        const std::optional<SplitColours> colour = splitter(colourOfSlot(slot, Settings));
        if (!colour)
            ErrorText +=
                u"\r\n"_s + Localise(u"Bad %1 for Editer of Code!"_s).arg(settingName(slot));
        const SplitColours shown = colour.value_or(SplitColours());
        entries += rtfColourEntry(shown.Red, shown.Green, shown.Blue);
    }
    return u"{\\colortbl ;"_s + entries + u'}';
}

QString defaultColourTable()
{
    return u"{\\colortbl ;\\red223\\green223\\blue223;\\red0\\green128\\blue0;"
           "\\red128\\green0\\blue0;\\red255\\green0\\blue0;\\red128\\green0\\blue255;"
           "\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red128\\green128\\blue0;}"_s;
}

RichTextSettings defaultColours()
{
    RichTextSettings settings;
    settings.BackColor = 0x00DFDFDF;
    settings.CommentColor = 0x00008000;
    settings.ConstantColor = 0x00000080;
    settings.InputColor = 0x000000FF;
    settings.OutputColor = 0x00FF0080;
    settings.ReservedWordColor = 0;
    settings.VariableColor = 0x00FF0000;
    settings.nviFPAColor = 0x00008080;
    return settings;
}

Colour shownColour(Colour colour)
{
    const SplitColours parts = *SplitColour(colour);
    const auto byte = [](qint32 part) { return std::clamp(part, 0, 255); };
    return byte(parts.Blue) << 16 | byte(parts.Green) << 8 | byte(parts.Red);
}

} // namespace ORVTListview
