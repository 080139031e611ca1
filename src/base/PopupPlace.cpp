#include "base/PopupPlace.h"

#include <algorithm>

namespace ORVTListview {

QRect popupPlace(const QRect &owner, const Popup &popup, const QRect &screen)
{
    const int screenEnd = screen.top() + screen.height();
    const int under = std::clamp(owner.top() + owner.height() + popup.gap, screen.top(), screenEnd);
    const int over = std::clamp(owner.top() - popup.gap, screen.top(), screenEnd);
    const int roomUnder = screenEnd - under;
    const int roomOver = over - screen.top();
    const bool isUnder = popup.wanted.height() <= roomUnder || roomUnder >= roomOver;
    const int height = std::min(popup.wanted.height(), isUnder ? roomUnder : roomOver);
    const int width = std::min(popup.wanted.width(), screen.width());
    const int nearest = popup.isFromRight ? owner.left() + owner.width() - width : owner.left();
    const int left = std::clamp(nearest, screen.left(), screen.left() + screen.width() - width);
    return {left, isUnder ? under : over - height, width, height};
}

} // namespace ORVTListview
