#include "Appearance.h"

#include "widgets/look/Luminance.h"

#include <QtCore/QSet>
#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr double leastContrast = 6.0;
constexpr int highestSaturation = 150; // of 255; more than that glares on dark

// The hue made so light, and no lighter, that it is read as well as any other.
qint32 madeLight(qint32 colour, const QColor &ground)
{
    const QColor given(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    const int saturation = std::min(given.hslSaturation(), highestSaturation);
    const double wanted = leastContrast * (luminance(ground) + 0.05) - 0.05;
    QColor light = given;
    for (int lightness = given.lightness(); lightness <= 255 && luminance(light) < wanted;
         ++lightness)
        light = QColor::fromHsl(given.hslHue(), saturation, lightness);
    return light.blue() << 16 | light.green() << 8 | light.red();
}

// A shade that nobody tells from it, where the colour itself is taken.
qint32 freeNear(qint32 colour, QSet<qint32> &taken)
{
    qint32 change = 0;
    while (taken.contains(colour ^ change))
        ++change;
    taken.insert(colour ^ change);
    return colour ^ change;
}

} // namespace

RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings)
{
    const QColor ground = palette.color(QPalette::Base);
    if (settings.BackColor >= 0 || ground.lightness() >= 128)
        return settings;
    // One for each, so that what is copied and printed can be told back.
    QSet<qint32> taken;
    for (qint32 *colour : {&settings.VariableColor, &settings.ConstantColor, &settings.InputColor,
                           &settings.OutputColor, &settings.ReservedWordColor,
                           &settings.CommentColor, &settings.nviFPAColor, &settings.nvoFPAColor})
        *colour = freeNear(madeLight(*colour, ground), taken);
    return settings;
}

} // namespace ORVTListview
