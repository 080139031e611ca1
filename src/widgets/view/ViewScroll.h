#pragma once

#include <QtCore/QItemSelectionModel>
#include <QtCore/QPersistentModelIndex>

class QAbstractItemView;

namespace ORVTListview {

// What a view scrolls for the program: nothing for a new current item, up and down
// for one that is to be seen.
class ViewScroll
{
public:
    explicit ViewScroll(QAbstractItemView &view);
    Q_DISABLE_COPY_MOVE(ViewScroll) // follows one view

    void makeCurrent(const QModelIndex &index, QItemSelectionModel::SelectionFlags selection);

    // A hidden view is to catch up when it is shown.
    void ensureVisible(const QModelIndex &index);

    // What it is to catch up with; handed out once, invalid for nothing.
    QModelIndex takeAwaited();

private:
    QAbstractItemView &m_view;
    QPersistentModelIndex m_awaited;
};

} // namespace ORVTListview
