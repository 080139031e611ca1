#include "editor/rules/PopupPlace.h"

#include <algorithm>

namespace ORVTListview {

QRect popupPlace(const QRect &word, const QSize &wanted, const QRect &screen)
{
    constexpr int gap = 2; // logical pixels
    const int screenEnd = screen.top() + screen.height();
    const int under = std::clamp(word.top() + word.height() + gap, screen.top(), screenEnd);
    const int over = std::clamp(word.top() - gap, screen.top(), screenEnd);
    const int roomUnder = screenEnd - under;
    const int roomOver = over - screen.top();
    const bool isUnder = wanted.height() <= roomUnder || roomUnder >= roomOver;
    const int height = std::min(wanted.height(), isUnder ? roomUnder : roomOver);
    const int width = std::min(wanted.width(), screen.width());
    const int left = std::clamp(word.left(), screen.left(), screen.left() + screen.width() - width);
    return {left, isUnder ? under : over - height, width, height};
}

} // namespace ORVTListview
