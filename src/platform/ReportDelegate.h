#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace ORVTListview {

// Draws the cells of a report list by the style, each on one line, and hands the
// label that a user has entered to the list instead of the model.
class ReportDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

    // Whether a cell of this option's place and size shows less than its text.
    bool isElided(const QStyleOptionViewItem &option, const QModelIndex &index) const;

Q_SIGNALS:
    void labelEntered(int position, const QString &text) const;
};

} // namespace ORVTListview
