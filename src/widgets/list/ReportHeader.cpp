#include "widgets/list/ReportHeader.h"

#include "base/EventGuard.h"
#include "widgets/look/PlainToolTip.h"

#include <QtGui/QHelpEvent>

#include <utility>

namespace ORVTListview {

ReportHeader::ReportHeader(QWidget *parent)
    : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setMinimumSectionSize(0);
    setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QHeaderView::sectionDoubleClicked, this, [this] { m_isSecondClick = true; });
}

// On a section, not on a divider, it is a second click, which is to be told as well.
void ReportHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    QHeaderView::mouseDoubleClickEvent(event);
    if (std::exchange(m_isSecondClick, false))
        QHeaderView::mousePressEvent(event);
}

void ReportHeader::mouseReleaseEvent(QMouseEvent *event)
{
    const QPointer<ReportHeader> self(this);
    QHeaderView::mouseReleaseEvent(event);
    if (self)
        Q_EMIT released(); // may destroy this header
}

bool ReportHeader::viewportEvent(QEvent *event)
{
    return EventGuard::run([this, event] {
        if (event->type() != QEvent::ToolTip)
            return QHeaderView::viewportEvent(event);
        const auto *help = static_cast<QHelpEvent *>(event);
        const int column = logicalIndexAt(help->pos());
        const QString text = column >= 0 && isElided(column)
                                 ? model()->headerData(column, Qt::Horizontal).toString()
                                 : QString();
        showPlainToolTip(*help, text, *viewport());
        return true;
    });
}

bool ReportHeader::isElided(int column) const
{
    return sectionSizeFromContents(column).width() > sectionSize(column);
}

} // namespace ORVTListview
