#include "find/rules/DialogPlace.h"

#include <algorithm>
#include <array>
#include <utility>

namespace ORVTListview {
namespace {

// The near edges win where the dialog is larger than the screen.
QRect onScreen(QRect dialog, const QRect &screen)
{
    dialog.moveLeft(
        std::max(screen.left(), std::min(dialog.left(), screen.right() + 1 - dialog.width())));
    dialog.moveTop(
        std::max(screen.top(), std::min(dialog.top(), screen.bottom() + 1 - dialog.height())));
    return dialog;
}

// What counts against a place: first how much it covers, then how far away it is.
std::pair<qint64, int> faults(const QRect &place, const QRect &dialog, const QRect &seen)
{
    const QRect covered = place & seen;
    return {qint64{covered.width()} * covered.height(),
            (place.topLeft() - dialog.topLeft()).manhattanLength()};
}

} // namespace

QRect dialogPlace(const QRect &dialog, const QRect &seen, const QRect &screen)
{
    const QRect here = onScreen(dialog, screen);
    if (!here.intersects(seen))
        return here;
    std::array places{here, here, here, here};
    places[0].moveTop(seen.bottom() + 1);
    places[1].moveBottom(seen.top() - 1);
    places[2].moveLeft(seen.right() + 1);
    places[3].moveRight(seen.left() - 1);
    for (QRect &place : places)
        place = onScreen(place, screen);
    return *std::min_element(places.begin(), places.end(), [&](const QRect &a, const QRect &b) {
        return faults(a, dialog, seen) < faults(b, dialog, seen);
    });
}

} // namespace ORVTListview
