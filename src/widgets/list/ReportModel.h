#pragma once

#include "widgets/list/ReportRow.h"
#include "widgets/view/Positions.h"

#include <QtCore/QAbstractTableModel>
#include <QtCore/QHash>
#include <QtCore/QList>
#include <QtGui/QIcon>

#include <functional>
#include <memory>
#include <vector>

namespace ORVTListview {

// The rows and columns of a report list. Positions count from 0 here; column 0 is
// a row's own text, column i its sub-item i. Cells belong to positions: a column
// is a heading over them, and rows keep the sub-items that no column shows.
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

    // The one way from a place in the views to its row and back.
    ReportRow &rowAt(const QModelIndex &place) const { return row(place.row()); }
    QModelIndex indexOf(const ReportRow &row, int column) const
    {
        return index(positionOf(row), column);
    }
    ReportRow &addRow(int position, RowContent content);
    void deleteRow(int position);

    // Both raise Error (InvalidCall) when a key is used twice and then change nothing.
    void setRows(QList<RowContent> contents);
    void appendRows(QList<RowContent> contents);

    const QString &cellText(const ReportRow &row, int column) const;
    static const QString &keyOf(const ReportRow &row) { return row.content.key; }
    static const QString &textOf(const ReportRow &row) { return row.content.text; }
    void setKey(ReportRow &row, const QString &key);
    void setText(ReportRow &row, const QString &text);
    void setSubItem(ReportRow &row, int column, const QString &text);
    void setSubItemTag(ReportRow &row, int column, const QString &tag);
    void setPicture(ReportRow &row, const QString &key);
    void setForeground(ReportRow &row, const QColor &colour);
    void setChecked(ReportRow &row, bool checked);
    void setSubItemOfAll(int column, const QString &text, const QString &tag);

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
    using Rows = std::vector<std::unique_ptr<ReportRow>>;
    using Keys = QHash<QString, ReportRow *>;

    static Rows rowsOf(QList<RowContent> contents);
    static Keys keysOf(const Rows &rows);
    void touch(const ReportRow &row, int column, const QList<int> &roles);
    void touchAll(int firstColumn, int lastColumn, const QList<int> &roles);

    Rows m_rows;
    Positions m_positions;
    Keys m_keys;
    std::vector<std::unique_ptr<ReportColumn>> m_columns;
    PictureProvider m_pictures;
    Entry m_entry;
    bool m_checkBoxes = false;
    int m_labelColumn = 0;
};

} // namespace ORVTListview
