#include "widgets/view/ViewScroll.h"

#include "widgets/view/OpenView.h"

#include <QtWidgets/QScrollBar>

#include <utility>

namespace ORVTListview {

StillView::StillView(QAbstractItemView &view)
    : m_view(&view)
    , m_scrolled(view.hasAutoScroll())
{
    view.setAutoScroll(false);
}

StillView::~StillView()
{
    if (m_view)
        m_view->setAutoScroll(m_scrolled);
}

ViewScroll::ViewScroll(QAbstractItemView &view)
    : m_view(view)
{
}

void ViewScroll::makeCurrent(const QModelIndex &index,
                             QItemSelectionModel::SelectionFlags selection)
{
    const StillView still(m_view);
    m_view.selectionModel()->setCurrentIndex(index, selection);
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
