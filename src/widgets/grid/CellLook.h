#pragma once

#include "widgets/grid/CellFlash.h"

class QStyleOptionViewItem;

namespace ORVTListview {

class CellTable;
class GridRules;
class ReportDelegate;

// How the cells of a grid are drawn beside their texts: the pictures, words and colours of
// their states, numbers at the right in the country's manner, and the flash of a change.
class CellLook
{
public:
    struct Tools
    {
        QTableView &view;
        const GridRules &rules;
        ReportDelegate &delegate;
    };

    explicit CellLook(const Tools &tools);
    ~CellLook();
    Q_DISABLE_COPY_MOVE(CellLook) // dresses the cells of one view

    // Whether numbers stand in the country's manner in the columns whose rule is one.
    bool hasLocalNumbers() const { return m_hasLocalNumbers; }
    void setLocalNumbers(bool on);

    // What is seen of a text in a column.
    QString shown(int column, const QString &text) const;

    CellFlash &flash() { return m_flash; }

private:
    void dress(QStyleOptionViewItem &cell, const QModelIndex &index) const;
    bool isLocal(int column) const;
    void dressState(QStyleOptionViewItem &cell, const QModelIndex &index) const;

    Tools m_tools;
    CellFlash m_flash;
    bool m_hasLocalNumbers = false;
};

} // namespace ORVTListview
