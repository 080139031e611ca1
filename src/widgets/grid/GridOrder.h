#pragma once

#include "grid/rules/RowFilter.h"
#include "grid/rules/RowOrder.h"
#include "widgets/grid/CellTable.h"

#include <QtCore/QMap>
#include <QtCore/QObject>

#include <functional>

class QTableView;

namespace ORVTListview {

// Which rows of a grid are seen, and in which order. Rows that replace all others are
// sorted and filtered likewise; those that are added stand last, and those whose cells
// change stay where they are, until somebody sorts or filters again. Rows that fill an
// emptied table are sorted and filtered once, when the event loop comes to it.
class GridOrder final : public QObject
{
public:
    // Calls before, which may change cells, before the rows are looked at. Shown tells what
    // is seen of a cell's text.
    struct Tools
    {
        QTableView &view;
        CellTable &table;
        std::function<void()> before;
        ShownText shown;
    };

    explicit GridOrder(const Tools &tools);

    // What is told of other rows or another order; it may end all this.
    void setFollower(const std::function<void()> &follow) { m_follow = follow; }

    // Whether clicks on headers sort, instead of selecting columns.
    bool isByHeader() const { return m_isByHeader; }
    void setByHeader(bool on);
    void click(int column, bool adds);

    // Keys of columns that are not there are left out.
    const QList<SortKey> &keys() const { return m_keys; }
    void setKeys(const QList<SortKey> &keys);

    // What was typed for a column, or for CellFilter::anyColumn.
    QString filter(int column) const { return m_filters.value(column); }
    void setFilter(int column, const QString &typed);
    void clearFilters();
    bool isFiltered() const { return !m_filters.isEmpty(); }

    // By what the cells hold now.
    void apply();

    // The rows that have come to an emptied table are the user's, and stay as they are.
    void keepRows();

private:
    CellTable::Order order() const;
    void noteReset();
    void noteRows();
    void markHeader();
    void moveColumns(const std::function<int(int)> &newColumn);

    Tools m_tools;
    std::function<void()> m_follow;
    QList<SortKey> m_keys;
    QMap<int, QString> m_filters;
    bool m_isByHeader = false;
    bool m_awaitsRows = false; // all have gone
    bool m_isRefilled = false; // arranged when the event loop comes to it
};

} // namespace ORVTListview
