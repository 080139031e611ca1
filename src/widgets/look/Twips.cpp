#include "widgets/look/Twips.h"

#include <QtCore/QtMath>
#include <QtWidgets/QWidget>

namespace ORVTListview {
namespace {

constexpr double twipsPerInch = 1440.0;

} // namespace

int Twips::toPixelsX(double twips, const QWidget &widget)
{
    return qRound(twips * widget.logicalDpiX() / twipsPerInch);
}

int Twips::toPixelsY(double twips, const QWidget &widget)
{
    return qRound(twips * widget.logicalDpiY() / twipsPerInch);
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
