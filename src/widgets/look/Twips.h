#pragma once

#include <QtCore/qglobal.h>

class QWidget;

namespace ORVTListview {

// The one conversion between the published unit of length (twips, 1440 to the
// inch) and the logical pixels of a widget. Pixels round to the nearest.
struct Twips
{
    static int toPixelsX(double twips, const QWidget &widget);
    static int toPixelsY(double twips, const QWidget &widget);
    static double fromPixelsX(double pixels, const QWidget &widget);
    static double fromPixelsY(double pixels, const QWidget &widget);
};

} // namespace ORVTListview
