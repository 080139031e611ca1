#pragma once

#include <QtGui/QColor>

#include <cmath>

namespace ORVTListview {

// Relative luminance, 0 to 1, as the web accessibility guidelines define it.
inline double luminance(const QColor &colour)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace ORVTListview
