#pragma once

#include "support/WidgetPicture.h"
#include "widgets/grid/GridFixture.h"

#include <QtWidgets/QScrollBar>

// Six columns of 120 pixels, of which three and a half are seen, scrolled by one and a half.
class KeptGrid : public ShownGrid
{
public:
    explicit KeptGrid(Qt::LayoutDirection direction = Qt::LeftToRight)
    {
        list->setLayoutDirection(direction);
        for (int column = 0; column < 6; ++column)
            list->setColumnWidth(column, 120);
        for (int column = 1; column < 6; ++column)
            set(1, column, QStringLiteral("In %1").arg(column));
        list->setMultiSelect(true);
        grid->setSelectsCells(true);
        grid->setKeepsFirstColumns(true);
        QCoreApplication::processEvents(); // the scroll bar knows the widths by then
        scroll(180);
    }
    void scroll(int to) const { list->horizontalScrollBar()->setValue(to); }
    int scrolled() const { return list->horizontalScrollBar()->value(); }
    int width() const { return list->viewport()->width(); }

    // From the edge where one begins to read.
    QPoint at(int x, int row) const
    {
        const int y = list->rowViewportPosition(row - 1) + list->rowHeight(row - 1) / 2;
        return inForm({list->isRightToLeft() ? width() - 1 - x : x, y});
    }
    QString under(int x, int row) const
    {
        const QModelIndex cell = list->indexAt(at(x, row) - inForm({}));
        return QStringLiteral("%1 %2").arg(cell.row() + 1).arg(cell.column());
    }
    int begin(int row, int column) const
    {
        const QRect place = list->visualRect(list->model()->index(row - 1, column));
        return list->isRightToLeft() ? width() - 1 - place.right() : place.left();
    }
    QPoint head(int x) const
    {
        const QWidget *header = list->horizontalHeader()->viewport();
        return header->mapTo(&form, QPoint(list->isRightToLeft() ? width() - 1 - x : x, 10));
    }
    // The columns as they are seen, all of them.
    QString order() const
    {
        QStringList order;
        for (int visual = 0; visual < list->horizontalHeader()->count(); ++visual)
            order.append(QString::number(list->horizontalHeader()->logicalIndex(visual)));
        return order.join(u' ');
    }
    int columnUnder(int x) const { return list->indexAt(at(x, 1) - inForm({})).column(); }
    QImage picture(int x, int size) const
    {
        const int left = list->isRightToLeft() ? width() - x - size : x;
        return pictureOf(*list->viewport()).copy(left, 0, size, list->viewport()->height());
    }
};
