#include "workbench/settings/ColourSets.h"

#include <QtGui/QRgb>

#include <array>
#include <cstddef>

namespace ORVTListview {
namespace {

struct ReadySet
{
    QRgb ground;
    std::array<QRgb, std::size(classColours)> words; // in the order of classColours
};

constexpr ReadySet light = {
    0xffffff, {0x00008b, 0x0060d0, 0x800000, 0xc00000, 0x8000ff, 0x6b6b00, 0xa0509a, 0x007a00}};
constexpr ReadySet dark = {
    0x1e1f22, {0x93a4ff, 0x6cb6ff, 0xe5a06a, 0xff8b8b, 0xc9a0ff, 0xd6c64c, 0xf29ad0, 0x7ec77e}};
constexpr ReadySet highContrast = {
    0x000000, {0xffff66, 0x66ccff, 0xffb366, 0xff8080, 0xd9b3ff, 0x00e6b8, 0xff99dd, 0x66ff66}};

const ReadySet &setOf(ColourSet set)
{
    switch (set) {
    case ColourSet::Dark:
        return dark;
    case ColourSet::HighContrast:
        return highContrast;
    default:
        return light;
    }
}

qint32 swapped(QRgb colour)
{
    return qBlue(colour) << 16 | qGreen(colour) << 8 | qRed(colour);
}

} // namespace

RichTextSettings readyColours(ColourSet set)
{
    RichTextSettings colours;
    const ReadySet &ready = setOf(set);
    colours.BackColor = swapped(ready.ground);
    for (std::size_t i = 0; i < std::size(classColours); ++i)
        colours.*classColours[i] = swapped(ready.words.at(i));
    return colours;
}

void takeColours(RichTextSettings &settings, const RichTextSettings &colours)
{
    settings.BackColor = colours.BackColor;
    for (const ClassColour colour : classColours)
        settings.*colour = colours.*colour;
}

} // namespace ORVTListview
