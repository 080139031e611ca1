#pragma once

#include <QtGui/QColor>

#include <algorithm>
#include <array>
#include <cmath>

namespace ORVTListview {

// Of each of the 256 values of a channel.
inline const std::array<double, 256> &linearChannel()
{
    static const std::array<double, 256> all = [] {
        std::array<double, 256> values{};
        for (std::size_t i = 0; i < values.size(); ++i) {
            const double value = static_cast<double>(i) / 255;
            values[i] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return values;
    }();
    return all;
}

// Relative luminance, 0 to 1, as the web accessibility guidelines define it.
inline double luminance(const QColor &colour)
{
    const auto linear = [](int channel) {
        return linearChannel()[static_cast<std::size_t>(channel)];
    };
    return 0.2126 * linear(colour.red()) + 0.7152 * linear(colour.green()) +
           0.0722 * linear(colour.blue());
}

// From 1 to 21, as they define it.
inline double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

// White stands out from it at least as well as black.
inline bool isDark(const QColor &ground)
{
    return luminance(ground) <= 0.179;
}

} // namespace ORVTListview
