#include "platform/ReportDelegate.h"

#include "platform/CellText.h"

#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyle>

namespace ORVTListview {

QString ReportDelegate::displayText(const QVariant &value, const QLocale &) const
{
    return shownText(value.toString());
}

void ReportDelegate::setModelData(QWidget *editor, QAbstractItemModel *,
                                  const QModelIndex &index) const
{
    if (const auto *line = qobject_cast<QLineEdit *>(editor))
        Q_EMIT labelEntered(index.row(), line->text());
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
