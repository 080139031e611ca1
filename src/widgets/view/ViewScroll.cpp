#include "widgets/view/ViewScroll.h"

#include "widgets/view/OpenView.h"

#include <QtWidgets/QScrollBar>

#include <utility>

namespace ORVTListview {

ViewScroll::ViewScroll(QAbstractItemView &view)
    : m_view(view)
{
}

void ViewScroll::makeCurrent(const QModelIndex &index,
                             QItemSelectionModel::SelectionFlags selection)
{
    const bool scrolls = m_view.hasAutoScroll();
    m_view.setAutoScroll(false);
    m_view.selectionModel()->setCurrentIndex(index, selection);
    m_view.setAutoScroll(scrolls);
}

void ViewScroll::ensureVisible(const QModelIndex &index)
{
    if (!m_view.isVisible())
        m_awaited = index;
    OpenView::layOutItems(m_view); // else the scroll bars know fewer rows
    const int horizontal = m_view.horizontalScrollBar()->value();
    m_view.scrollTo(index);
    m_view.horizontalScrollBar()->setValue(horizontal);
}

QModelIndex ViewScroll::takeAwaited()
{
    return std::exchange(m_awaited, QPersistentModelIndex());
}

} // namespace ORVTListview
