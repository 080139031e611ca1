#pragma once

#include "base/TextHash.h"
#include "widgets/grid/CellTable.h"
#include "widgets/list/ChangedCells.h"
#include "widgets/list/ReportRow.h"
#include "widgets/view/Positions.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QList>
#include <QtGui/QIcon>

#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

namespace ORVTListview {

// The rows and columns of a report list. Positions count from 0 here; column 0 is
// a row's own text, column i its sub-item i. Cells belong to positions: a column
// is a heading over them, and rows keep the sub-items that no column shows.
//
// Views may have the rows in another order, or fewer of them: what they call a row is a
// place here. A row that is added then stands last.
//
// A change of many rows is one notice to the views.
class ReportModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    using PictureProvider = std::function<QIcon(const QString &key)>;

    using QAbstractTableModel::QAbstractTableModel;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // Rows. The caller has checked positions, and that a key is free.
    int rows() const { return static_cast<int>(m_rows.size()); }
    ReportRow &row(int position) const { return *m_rows[static_cast<std::size_t>(position)]; }
    ReportRow *find(const QString &key) const;
    int positionOf(const ReportRow &row) const;

    // The one way from a place in the views to its row and back. A row that views do not
    // have is at -1, an invalid index.
    ReportRow &rowAt(const QModelIndex &index) const { return rowAt(index.row()); }
    ReportRow &rowAt(int place) const
    {
        return m_isOrdered ? *m_shown[static_cast<std::size_t>(place)] : row(place);
    }
    int placeOf(const ReportRow &row) const
    {
        return m_isOrdered ? m_places.of(m_shown, row, &ReportRow::place) : positionOf(row);
    }
    QModelIndex indexOf(const ReportRow &row, int column) const
    {
        return index(placeOf(row), column);
    }

    // The positions of the rows that views have, in their order; without it all in their
    // own. Views keep what they know of rows that stay.
    using Order = std::optional<QList<int>>;
    void show(const Order &positions);
    bool isOrdered() const { return m_isOrdered; }

    // What tells the order of rows that replace all others.
    void setOrderer(const std::function<Order()> &order) { m_orderer = order; }
    Order wantedOrder() const { return m_orderer ? m_orderer() : std::nullopt; }

    using Rows = std::vector<std::unique_ptr<ReportRow>>;
    ReportRow &addRow(int position, RowContent content);
    void addRows(int position, Rows rows);
    void deleteRow(int position);

    // That follow one another in the views.
    void deleteShown(int place, int count);

    // In ascending order, all by one place; only while views have all rows in their own order.
    void moveRows(const QList<int> &positions, int step);

    // Both raise Error (InvalidCall) when a key is used twice and then change nothing.
    void setRows(QList<RowContent> contents);
    void appendRows(QList<RowContent> contents);

    // Views are told of the cells that a change of texts touches when it is done, and of those
    // that are side by side at once. What they tell others may end all this.
    void gather(const std::function<void()> &change);

    const QString &cellText(const ReportRow &row, int column) const;
    static const QString &keyOf(const ReportRow &row) { return row.content.key; }
    static const QString &textOf(const ReportRow &row) { return row.content.text; }
    void setKey(ReportRow &row, const QString &key);
    void setText(ReportRow &row, const QString &text);

    // Gives the former one back.
    QString exchangeText(ReportRow &row, int column, const QString &text);
    void setSubItem(ReportRow &row, int column, const QString &text);
    void setSubItemTag(ReportRow &row, int column, const QString &tag);
    void setPicture(ReportRow &row, const QString &key);
    void setForeground(ReportRow &row, const QColor &colour);
    void setChecked(ReportRow &row, bool checked);
    void setSubItemOfAll(int column, const QString &text, const QString &tag);

    // Shown by views that know of it, and told to screen readers.
    static CellState state(const ReportRow &row, int column)
    {
        return static_cast<CellState>(row.states.size() > column ? row.states.at(column) : 0);
    }
    void setState(ReportRow &row, int column, CellState state);

    // The words of states are others by now.
    void retellStates() { touchAll(0, columns() - 1, {Qt::ToolTipRole, Qt::AccessibleTextRole}); }

    // Columns.
    int columns() const { return static_cast<int>(m_columns.size()); }
    ReportColumn &column(int position) const
    {
        return *m_columns[static_cast<std::size_t>(position)];
    }
    ReportColumn *findColumn(const QString &key) const;
    int positionOf(const ReportColumn &column) const;
    ReportColumn &addColumn(int position, const QString &key, const QString &text,
                            Qt::Alignment alignment);
    void deleteColumn(int position);
    void clearColumns();
    static const QString &keyOf(const ReportColumn &column) { return column.key; }
    static const QString &textOf(const ReportColumn &column) { return column.text; }
    static void setKey(ReportColumn &column, const QString &key) { column.key = key; }
    void setText(ReportColumn &column, const QString &text);
    void setColumnAlignment(ReportColumn &column, Qt::Alignment alignment);

    // See ReportColumn; it is header data of this role, too, and told to screen readers.
    static constexpr int sortRankRole = CellTable::stateRole + 1;
    void setSortRank(int column, int rank);

    // Views.
    bool hasCheckBoxes() const { return m_checkBoxes; }
    void setCheckBoxes(bool on);

    // The column whose cells can be edited; 0 while the one that was set is not there.
    int labelColumn() const { return m_labelColumn < columns() ? m_labelColumn : 0; }
    void setLabelColumn(int column) { m_labelColumn = column; }
    // What takes a text that a view sets in a column that users edit: screen readers do.
    using Entry = std::function<bool(const QModelIndex &cell, const QString &text)>;
    void setEntry(const Entry &entry) { m_entry = entry; }

    void setPictureProvider(PictureProvider provider);
    QIcon pictureOf(const ReportRow &row) const;

Q_SIGNALS:
    void checkedByUser(int position);

private:
    using Keys = TextHash<ReportRow *>;

    // Begins a change: who is told that it is about to come cannot make another one within
    // it, which raises Error (InvalidCall).
    void announce(const std::function<void()> &begin);

    static Rows rowsOf(QList<RowContent> contents);
    static Keys keysOf(const Rows &rows);
    void takeShown(int place, int count);
    void touch(const ReportRow &row, int column, std::initializer_list<int> roles);
    void tell(const QList<ChangedCells::Block> &blocks);
    void touchAll(int firstColumn, int lastColumn, const QList<int> &roles);
    void order(const Order &positions);
    void layOut(const std::function<void()> &change);

    Rows m_rows;
    std::vector<ReportRow *> m_shown; // in the views' order, while they have one
    Positions m_places;               // in it
    std::function<Order()> m_orderer;
    bool m_isOrdered = false;
    Positions m_positions;
    Keys m_keys;
    std::vector<std::unique_ptr<ReportColumn>> m_columns;
    PictureProvider m_pictures;
    Entry m_entry;
    bool m_isAnnouncing = false;
    bool m_checkBoxes = false;
    int m_labelColumn = 0;
    std::optional<ChangedCells> m_touched; // while they are gathered
};

} // namespace ORVTListview
