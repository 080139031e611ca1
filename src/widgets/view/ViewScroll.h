#pragma once

#include <QtCore/QItemSelectionModel>
#include <QtCore/QPersistentModelIndex>
#include <QtCore/QPointer>
#include <QtWidgets/QAbstractItemView>

namespace ORVTListview {

// While this lives, a new current item is not scrolled to. The toolkit makes another one
// current when the program takes the current one away.
class StillView
{
public:
    explicit StillView(QAbstractItemView &view);
    ~StillView();
    Q_DISABLE_COPY_MOVE(StillView) // gives back once

private:
    QPointer<QAbstractItemView> m_view; // which a receiver may destroy
    bool m_scrolled;
};

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
