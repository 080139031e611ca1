#include "Appearance.h"

#include "widgets/look/Luminance.h"

#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtGui/QPalette>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>

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

struct Adapted
{
    qint32 paper;
    qint32 shown;
};

// Whether users could not tell it from one that is another on paper.
bool isTaken(const QList<Adapted> &former, const Adapted &colour)
{
    constexpr int least = 32; // of 255, in a part of the colour
    return std::ranges::any_of(former, [&colour](const Adapted &other) {
        const auto isNear = [&colour, &other](int part) {
            return std::abs((colour.shown >> part & 0xFF) - (other.shown >> part & 0xFF)) < least;
        };
        return other.paper != colour.paper && isNear(0) && isNear(8) && isNear(16);
    });
}

// The same colour of another hue; grey gets one.
qint32 turned(qint32 colour, int steps)
{
    const QColor given(colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF);
    const QColor other =
        QColor::fromHsl((std::max(given.hslHue(), 0) + 25 * steps) % 360, highestSaturation,
                        std::max(given.lightness(), 64)); // black has no hue
    return other.blue() << 16 | other.green() << 8 | other.red();
}

int brightness(qint32 colour)
{
    return std::max({colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF});
}

} // namespace

// What is brighter on paper keeps its hue; what would come out as the same is turned from it.
RichTextSettings legibleOn(const QPalette &palette, RichTextSettings settings)
{
    const QColor ground = palette.color(QPalette::Base);
    if (settings.BackColor >= 0 || !isDark(ground))
        return settings;
    auto order = classes;
    std::ranges::stable_sort(order, std::ranges::greater(), [&settings](const auto colour) {
        return brightness(settings.*colour);
    });
    QList<Adapted> adapted;
    for (const auto colour : order) {
        Adapted next{settings.*colour, madeLight(settings.*colour, ground)};
        for (int steps = 1; steps < 72 && isTaken(adapted, next); ++steps)
            next.shown = madeLight(turned(next.paper, steps), ground);
        adapted.append(next);
        settings.*colour = next.shown;
    }
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
