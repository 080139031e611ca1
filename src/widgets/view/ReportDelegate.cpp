#include "widgets/view/ReportDelegate.h"

#include "widgets/look/CellText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

namespace ORVTListview {

void ReportDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem unfocused = option;
    unfocused.state &= ~QStyle::State_HasFocus;
    QStyledItemDelegate::paint(painter, unfocused, index);
    if (!option.state.testFlag(QStyle::State_HasFocus))
        return;
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    const QColor colour =
        option.palette.color(selected ? QPalette::HighlightedText : QPalette::Text);
    painter->save();
    painter->setPen(QPen(colour, 1, Qt::DotLine));
    painter->drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

QString ReportDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return shownText(value.toString());
}

void ReportDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->text = inOwnDirection(option->text, option->direction);
}

void ReportDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                  const QModelIndex &index) const
{
    if (const auto *line = qobject_cast<QLineEdit *>(editor))
        Q_EMIT labelEntered(index, line->text());
}

bool ReportDelegate::isElided(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QStyle &style = *filled.widget->style();
    const QRect room = style.subElementRect(QStyle::SE_ItemViewItemText, &filled, filled.widget);
    const int gap = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &filled, filled.widget) + 1;
    return filled.fontMetrics.horizontalAdvance(filled.text) > room.width() - 2 * gap;
}

} // namespace ORVTListview
