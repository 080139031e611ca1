#include "widgets/list/KeptColumns.h"

#include "widgets/view/OpenView.h"

#include <QtGui/QPainter>
#include <QtGui/QRegion>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>
#include <QtWidgets/QTableView>

#include <utility>

namespace ORVTListview {
namespace {

constexpr int most = 2;

// As the view draws it.
void paintCell(QPainter &painter, const QTableView &view, const QModelIndex &cell, bool isAlternate)
{
    QStyleOptionViewItem option = OpenView::cellOption(view, cell);
    if (view.showGrid())
        option.rect.adjust(view.isRightToLeft() ? 1 : 0, 0, view.isRightToLeft() ? 0 : -1, -1);
    option.features.setFlag(QStyleOptionViewItem::Alternate, isAlternate);
    option.state.setFlag(QStyle::State_Selected, view.selectionModel()->isSelected(cell));
    const bool isCurrent = cell == view.currentIndex();
    option.state.setFlag(QStyle::State_HasFocus,
                         isCurrent && (view.hasFocus() || view.viewport()->hasFocus()));
    view.style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, &view);
    view.itemDelegateForIndex(cell)->paint(&painter, option, cell);
}

} // namespace

void KeptColumns::setOn(bool on)
{
    m_isOn = on;
    if (on && !std::exchange(m_follows, true))
        follow();
    refresh();
}

void KeptColumns::follow()
{
    const auto refreshed = [this] { refresh(); };
    const QHeaderView *header = m_view.horizontalHeader();
    connect(header, &QHeaderView::sectionResized, this, refreshed);
    connect(header, &QHeaderView::sectionMoved, this, refreshed);
    connect(m_view.model(), &QAbstractItemModel::headerDataChanged, this, refreshed);
    connect(m_view.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_view.viewport()->update(area()); });
}

QList<int> KeptColumns::columns() const
{
    const QHeaderView &header = *m_view.horizontalHeader();
    QList<int> kept;
    int width = 0;
    for (int visual = 0; visual < header.count() && kept.size() < most; ++visual) {
        const int column = header.logicalIndex(visual);
        width += header.sectionSize(column);
        if (!header.isSectionHidden(column))
            kept.append(column);
    }
    const bool hasRoom = 3 * width <= 2 * m_view.viewport()->width();
    return m_isOn && header.offset() > 0 && hasRoom ? kept : QList<int>();
}

QRect KeptColumns::area() const
{
    int width = 0;
    for (const int column : columns())
        width += m_view.columnWidth(column);
    const QSize room = m_view.viewport()->size();
    return {m_view.isRightToLeft() ? room.width() - width : 0, 0, width, room.height()};
}

int KeptColumns::shift() const
{
    const int offset = m_view.horizontalHeader()->offset();
    return m_view.isRightToLeft() ? -offset : offset;
}

int KeptColumns::shift(int column) const
{
    return columns().contains(column) ? shift() : 0;
}

int KeptColumns::shiftAt(int x) const
{
    const QRect kept = area();
    return kept.left() <= x && x <= kept.right() ? shift() : 0;
}

void KeptColumns::paint(const QRegion &region) const
{
    const QRect kept = area();
    if (!region.intersects(kept))
        return;
    QPainter painter(m_view.viewport());
    painter.setClipRegion(region & kept);
    painter.fillRect(kept, m_view.viewport()->palette().brush(m_view.viewport()->backgroundRole()));
    const QHeaderView &rows = *m_view.verticalHeader();
    const int first = rows.visualIndexAt(region.boundingRect().top());
    for (int visual = first; visual >= 0 && visual < rows.count(); ++visual) {
        const int row = rows.logicalIndex(visual);
        if (m_view.rowViewportPosition(row) > region.boundingRect().bottom())
            break;
        for (const int column : columns()) {
            if (!rows.isSectionHidden(row))
                paintCell(painter, m_view, m_view.model()->index(row, column),
                          m_view.alternatingRowColors() && visual % 2 == 1);
        }
    }
    QColor line = m_view.palette().color(QPalette::Text);
    line.setAlphaF(0.4F);
    const int edge = m_view.isRightToLeft() ? kept.left() : kept.right();
    painter.fillRect(edge, kept.top(), 1, kept.height(), line); // all of its pixels
}

void KeptColumns::uncover(const QModelIndex &cell) const
{
    const QRect kept = area();
    const QRect covered = m_view.visualRect(cell) & kept;
    if (covered.isEmpty() || columns().contains(cell.column()))
        return;
    QScrollBar &bar = *m_view.horizontalScrollBar();
    const bool isRight = m_view.isRightToLeft();
    const int by = isRight ? m_view.visualRect(cell).right() + 1 - kept.left()
                           : kept.right() + 1 - m_view.visualRect(cell).left();
    const bool isPerItem = m_view.horizontalScrollMode() == QAbstractItemView::ScrollPerItem;
    bar.setValue(bar.value() - (isPerItem ? most : by));
}

void KeptColumns::refresh() const
{
    m_view.viewport()->update();
    m_view.horizontalHeader()->viewport()->update();
    coverEditor();
}

// One that is scrolled under them is not to lie over them.
void KeptColumns::coverEditor() const
{
    QWidget *editor = m_view.indexWidget(m_view.currentIndex());
    if (!editor)
        return;
    const QRect covered =
        columns().contains(m_view.currentIndex().column()) ? QRect() : editor->geometry() & area();
    if (covered.isEmpty())
        editor->clearMask();
    else
        editor->setMask(QRegion(editor->rect()) -
                        covered.translated(-editor->geometry().topLeft()));
}

} // namespace ORVTListview
