#include "pointtable/rules/TableLayout.h"

#include <algorithm>

namespace ORVTListview {
namespace {

constexpr double captionMargin = 45; // on the right of the caption
constexpr double readLeft = 45;
constexpr double writeFromRight = 325;
constexpr double pictureTop = 30;
constexpr double largestPicture = 240;
constexpr double textGap = 75;
constexpr double bodyGap = 15;    // between caption and body
constexpr double bodyMargin = 30; // on the right of the body
constexpr double bodyLoss = 40;   // of the height; what the gap does not take stays free below

double notNegative(double length)
{
    return std::max(length, 0.0);
}

} // namespace

TableLayout layOutTable(double width, double height, double captionHeight)
{
    // From their top down to the body.
    const double picture =
        notNegative(std::min(largestPicture, captionHeight + bodyGap - pictureTop));
    const double writeLeft = width - writeFromRight;
    const double textLeft = readLeft + picture + textGap;
    const double textWidth = writeLeft - textGap - textLeft;
    const double bodyHeight = height - captionHeight - bodyLoss;
    return {
        QRectF(0, 0, notNegative(width - captionMargin), captionHeight),
        QRectF(textLeft, 0, notNegative(textWidth), captionHeight),
        QRectF(readLeft, pictureTop, picture, picture),
        QRectF(writeLeft, pictureTop, picture, picture),
        QRectF(0, captionHeight + bodyGap, notNegative(width - bodyMargin),
               notNegative(bodyHeight)),
    };
}

} // namespace ORVTListview
