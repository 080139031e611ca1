#include "editor/view/ViewColours.h"

#include "widgets/look/Luminance.h"

#include <QtGui/QPalette>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr int steps = 32;

int distance(const QColor &one, const QColor &other)
{
    return std::max({std::abs(one.red() - other.red()), std::abs(one.green() - other.green()),
                     std::abs(one.blue() - other.blue())});
}

} // namespace

QColor ViewColours::mixed(const QColor &one, const QColor &other, double share)
{
    const auto mix = [share](int a, int b) { return qRound(a + (b - a) * share); };
    return QColor(mix(one.red(), other.red()), mix(one.green(), other.green()),
                  mix(one.blue(), other.blue()));
}

QColor ViewColours::onGround(const QColor &wanted, const QColor &ground, double leastContrast)
{
    return onGrounds(wanted, {ground}, leastContrast);
}

QColor ViewColours::onGrounds(const QColor &wanted, const QList<QColor> &grounds,
                              double leastContrast)
{
    const QColor away = isDark(grounds.constFirst()) ? Qt::white : Qt::black;
    QColor colour = wanted;
    const auto isFaint = [&](const QColor &ground) {
        return contrast(colour, ground) < leastContrast;
    };
    for (int i = 1; i <= steps && std::any_of(grounds.cbegin(), grounds.cend(), isFaint); ++i)
        colour = mixed(wanted, away, double(i) / steps);
    return colour;
}

QColor ViewColours::groundOf(const QWidget &box)
{
    return box.palette().color(QPalette::Base);
}

QColor ViewColours::textOf(const QWidget &box)
{
    return box.palette().color(QPalette::Text);
}

QColor ViewColours::faintGround(const QColor &ground)
{
    constexpr int noticeable = 9; // of 255
    const QColor away = isDark(ground) ? Qt::black : Qt::white;
    const QColor mixture = mixed(ground, away, 0.5);
    if (distance(ground, mixture) >= noticeable)
        return mixture;
    // Blue adds next to nothing to what the eye takes for bright.
    return isDark(ground) ? QColor(ground.red(), ground.green(), std::min(255, ground.blue() + 38))
                          : QColor(ground.red(), ground.green(), std::max(0, ground.blue() - 30));
}

QColor ViewColours::tinted(const QColor &ground, const QColor &colour)
{
    return mixed(ground, colour, 0.16);
}

QColor ViewColours::quietText(const QColor &text, const QColor &ground)
{
    for (int i = 1; i <= steps; ++i) {
        const QColor colour = mixed(ground, text, double(i) / steps);
        if (contrast(colour, ground) >= readable)
            return colour;
    }
    return onGround(text, ground, readable);
}

QColor ViewColours::foundGround(const QColor &ground)
{
    return mixed(ground, QColor(0xff, 0xb3, 0x00), 0.22);
}

QColor ViewColours::errorOn(const QColor &ground)
{
    return onGround(QColor(0xe5, 0x39, 0x35), ground, visible);
}

QColor ViewColours::warningOn(const QColor &ground)
{
    return onGround(QColor(0xd9, 0x86, 0x00), ground, visible);
}

QColor ViewColours::hintOn(const QColor &ground)
{
    return onGround(QColor(0x1e, 0x88, 0xe5), ground, visible);
}

} // namespace ORVTListview
