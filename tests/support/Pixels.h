#pragma once

// Looks at drawn pictures pixel by pixel.

#include <QtGui/QColor>
#include <QtGui/QIcon>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <algorithm>
#include <cmath>

namespace Pixels {

inline QImage of(const QIcon &icon, int size, qreal ratio = 1.0, QIcon::Mode mode = QIcon::Normal)
{
    return icon.pixmap(QSize(size, size), ratio, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

// How many pixels the test holds for. Sees them as QRgb, not premultiplied.
template <typename Test>
int count(const QImage &image, Test test)
{
    int number = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            number += test(image.pixel(x, y)) ? 1 : 0;
    return number;
}

template <typename Test>
bool all(const QImage &image, Test test)
{
    return count(image, test) == image.width() * image.height();
}

inline bool isPainted(QRgb pixel)
{
    return qAlpha(pixel) > 0;
}

inline bool isSolid(QRgb pixel)
{
    return qAlpha(pixel) == 255;
}

inline QImage over(const QImage &picture, const QColor &ground)
{
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    QImage bare = picture;
    bare.setDevicePixelRatio(1.0);
    painter.drawImage(0, 0, bare);
    return image;
}

// Relative luminance as web accessibility defines it, 0 to 1.
inline double luminance(QRgb pixel)
{
    const auto linear = [](int channel) {
        const double value = channel / 255.0;
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
           0.0722 * linear(qBlue(pixel));
}

// 1 for equal colours, 21 for black and white.
inline double contrast(QRgb one, QRgb other)
{
    const auto [low, high] = std::minmax({luminance(one), luminance(other)});
    return (high + 0.05) / (low + 0.05);
}

// Pixels of the picture, laid on the ground, that stand out from it at least so much.
inline int countStandingOut(const QImage &picture, const QColor &ground, double least)
{
    return count(over(picture, ground),
                 [&](QRgb pixel) { return contrast(pixel, ground.rgb()) >= least; });
}

// Pixels whose coverage differs by more than a quarter: what is left of a
// difference without colour.
inline int countShapeDifferences(const QImage &one, const QImage &other)
{
    int number = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            number += std::abs(qAlpha(one.pixel(x, y)) - qAlpha(other.pixel(x, y))) > 64 ? 1 : 0;
    return number;
}

} // namespace Pixels
