#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace ORVTListview {

// Rows as high as those of the tables, and columns that keep apart.
class RoomyRows final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace ORVTListview
