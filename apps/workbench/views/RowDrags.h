#pragma once

#include <QtCore/QObject>

namespace ORVTListview {

class ORVListView;

// Lets users drag the rows of a table, which drop into a program as names. Where cells are
// selected, the mouse selects them, and rows are dragged by their numbers.
class RowDrags : public QObject
{
    Q_OBJECT

public:
    // Belongs to the list.
    explicit RowDrags(ORVListView &list);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ORVListView &m_list;
};

} // namespace ORVTListview
