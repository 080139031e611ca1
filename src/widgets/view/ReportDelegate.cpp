#include "widgets/view/ReportDelegate.h"

#include "widgets/look/CellText.h"

#include <QtGui/QPainter>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

namespace ORVTListview {
namespace {

// More letters than have room in this width, in any font that can be read.
qsizetype lettersWithin(int width)
{
    constexpr int room = 64;
    return std::max(0, width) + room;
}

} // namespace

void ReportDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    cell.state &= ~QStyle::State_HasFocus;
    initStyleOption(&cell, index);
    cell.text = beginningOf(cell.text, lettersWithin(cell.rect.width()));
    cell.widget->style()->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
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
    return cellText(value.toString());
}

void ReportDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                  const QModelIndex &index) const
{
    if (const auto *line = qobject_cast<QLineEdit *>(editor))
        Q_EMIT labelEntered(index, line->text());
}

bool ReportDelegate::isElided(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    if (index.data().toString().size() > lettersWithin(option.rect.width()))
        return true;
    QStyleOptionViewItem filled = option;
    initStyleOption(&filled, index);
    const QStyle &style = *filled.widget->style();
    const QRect room = style.subElementRect(QStyle::SE_ItemViewItemText, &filled, filled.widget);
    const int gap = style.pixelMetric(QStyle::PM_FocusFrameHMargin, &filled, filled.widget) + 1;
    return filled.fontMetrics.horizontalAdvance(filled.text) > room.width() - 2 * gap;
}

} // namespace ORVTListview
