#include "workbench/RoomyRows.h"

#include <QtGui/QFontMetrics>

#include <algorithm>

namespace ORVTListview {

QSize RoomyRows::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize text = QStyledItemDelegate::sizeHint(option, index);
    const QFontMetrics &letters = option.fontMetrics;
    return {text.width() + 2 * letters.averageCharWidth(),
            std::max(text.height(), letters.height() * 3 / 2)};
}

} // namespace ORVTListview
