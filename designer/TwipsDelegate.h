#pragma once

#include <QtWidgets/QStyledItemDelegate>

// Edits a column's width.
class TwipsDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
};
