#include "Appearance.h"

#include "widgets/look/Luminance.h"

#include <QtCore/QHash>
#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <algorithm>
#include <array>

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

constexpr std::array classes = {
    &RichTextSettings::VariableColor,     &RichTextSettings::ConstantColor,
    &RichTextSettings::InputColor,        &RichTextSettings::OutputColor,
    &RichTextSettings::ReservedWordColor, &RichTextSettings::CommentColor,
    &RichTextSettings::nviFPAColor,       &RichTextSettings::nvoFPAColor};

} // namespace

RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings)
{
    const QColor ground = palette.color(QPalette::Base);
    if (settings.BackColor >= 0 || !isDark(ground))
        return settings;
    for (const auto colour : classes)
        settings.*colour = madeLight(settings.*colour, ground);
    return settings;
}

RichTextSettings toldApart(RichTextSettings shown, const RichTextSettings &paper)
{
    QHash<qint32, qint32> paperOf;
    for (const auto colour : classes) {
        if (shown.*colour < 0)
            continue; // the system's
        qint32 change = 0;
        while (paperOf.value(shown.*colour ^ change, paper.*colour) != paper.*colour)
            ++change;
        shown.*colour ^= change;
        paperOf.insert(shown.*colour, paper.*colour);
    }
    return shown;
}

} // namespace ORVTListview
