#include "Appearance.h"

#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int lowestLightness = 170; // of 255, on a dark background

qint32 madeLight(qint32 colour)
{
    const QColor given(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    const QColor light = QColor::fromHsl(given.hslHue(), std::min(given.hslSaturation(), 200),
                                         std::max(given.lightness(), lowestLightness));
    return light.blue() << 16 | light.green() << 8 | light.red();
}

} // namespace

RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings)
{
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    if (settings.BackColor >= 0 || !isDark)
        return settings;
    for (qint32 *colour : {&settings.VariableColor, &settings.ConstantColor, &settings.InputColor,
                           &settings.OutputColor, &settings.ReservedWordColor,
                           &settings.CommentColor, &settings.nviFPAColor, &settings.nvoFPAColor})
        *colour = madeLight(*colour);
    return settings;
}

} // namespace ORVTListview
