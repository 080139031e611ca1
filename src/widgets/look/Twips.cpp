#include "widgets/look/Twips.h"

#include <QtCore/QtMath>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr double twipsPerInch = 1440.0;

// No widget reaches further than QWIDGETSIZE_MAX; what is no number is nowhere.
int wholePixels(double pixels)
{
    constexpr double most = QWIDGETSIZE_MAX;
    return qIsNaN(pixels) ? 0 : qRound(std::clamp(pixels, -most, most));
}

} // namespace

int Twips::toPixelsX(double twips, const QWidget &widget)
{
    return wholePixels(twips * widget.logicalDpiX() / twipsPerInch);
}

int Twips::toPixelsY(double twips, const QWidget &widget)
{
    return wholePixels(twips * widget.logicalDpiY() / twipsPerInch);
}

double Twips::fromPixelsX(double pixels, const QWidget &widget)
{
    return pixels * twipsPerInch / widget.logicalDpiX();
}

double Twips::fromPixelsY(double pixels, const QWidget &widget)
{
    return pixels * twipsPerInch / widget.logicalDpiY();
}

} // namespace ORVTListview
