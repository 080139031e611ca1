#pragma once

#include <QtWidgets/QStyledItemDelegate>

namespace ORVTListview {

// Draws a row of a MatchModel: picture, text with the letters that match stronger, kind
// and description, each in a column of its own.
class MatchDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    // In logical pixels, without the room around them; 0 for a column that is not there.
    struct Widths
    {
        int icon = 0;
        int text = 0;
        int kind = 0;
        int description = 0;
        int row = 0; // its height
    };
    void setWidths(const Widths &widths) { m_widths = widths; }

    // What a row of these widths needs.
    int rowWidth() const;

    static QFont strong(QFont font);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    Widths m_widths;
};

} // namespace ORVTListview
