#include "widgets/look/ElidedLabel.h"

#include "widgets/look/CellText.h"
#include "widgets/look/PlainToolTip.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyle>

namespace ORVTListview {

ElidedLabel::ElidedLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QString ElidedLabel::line() const
{
    return shownText(text());
}

QString ElidedLabel::shownLine() const
{
    return fontMetrics().elidedText(line(), Qt::ElideRight, contentsRect().width());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || !toolTip().isEmpty())
        return QLabel::event(event);
    showPlainToolTip(*static_cast<QHelpEvent *>(event), shownLine() == line() ? QString() : text(),
                     *this);
    return true;
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    if (contentsRect().isEmpty())
        return;
    QPainter painter(this);
    const auto left = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft);
    style()->drawItemText(
        &painter, contentsRect(), static_cast<int>(left | Qt::AlignVCenter | Qt::TextSingleLine),
        palette(), isEnabled(), inOwnDirection(shownLine(), layoutDirection()), foregroundRole());
}

} // namespace ORVTListview
