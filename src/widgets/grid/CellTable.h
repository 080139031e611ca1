#pragma once

#include <ORVTListview/CellState.h>

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>
#include <QtCore/QRect>
#include <QtCore/QString>

#include <functional>
#include <optional>

namespace ORVTListview {

class ColumnHeader;
class ListItem;

// The rows and columns of a list as its grid sees them: a row is its handle, whatever
// place it has in the view, a column is counted from 0. This is the only way from a row to
// its place in the view and back. A row's position, from 0, is that among all rows as the
// host has put them.
class CellTable
{
public:
    CellTable() = default;
    virtual ~CellTable() = default;
    Q_DISABLE_COPY_MOVE(CellTable) // the part of a list

    // Null for no place.
    virtual ListItem *itemAt(const QModelIndex &place) const = 0;

    // Invalid when the view does not have the row, and when isThere is false.
    virtual QModelIndex placeOf(const ListItem *item, int column) const = 0;

    // False when the row or the column is gone, or the row another list's.
    virtual bool isThere(const ListItem *item, int column) const = 0;

    // Raises Error, named for the member that was called, for a row that is gone or another
    // list's.
    virtual void check(const ListItem *item, const QString &member) const = 0;

    // The row and the column are there.
    virtual const QString &text(const ListItem &item, int column) const = 0;

    // Null where either is gone.
    virtual const QString *textIn(const ListItem *item, int column) const = 0;

    // Gives the former one back. The row and the column are there.
    virtual QString exchangeText(ListItem &item, int column, const QString &text) = 0;

    // What changes texts only: the views are told when it is done, of cells side by side at
    // once. They may then end all this.
    virtual void setTexts(const std::function<void()> &change) = 0;

    virtual int columns() const = 0;
    virtual QString columnKey(int column) const = 0;
    virtual QString columnText(int column) const = 0;

    // What stays with a column wherever it is, and where it is now: -1 when it is gone.
    virtual const ColumnHeader *headerOf(int column) const = 0;
    virtual int columnOf(const ColumnHeader *header) const = 0;

    // Plain for what is not there. Cells tell theirs as an int of this role, too.
    static constexpr int stateRole = Qt::UserRole;
    virtual CellState state(const ListItem *item, int column) const = 0;
    virtual void setState(const ListItem *item, int column, CellState state) = 0;

    // Rows by their positions.
    virtual int rows() const = 0;
    virtual const QString &textOf(int position, int column) const = 0;

    // The row is there.
    virtual int positionOf(const ListItem &item) const = 0;

    // A row for each, before the row at a position, or behind all; with the texts and states
    // of another one, or empty for null, and without a key. What is told of it may take rows
    // away again, and end all this.
    virtual QList<ListItem *> insertRows(int position, const QList<ListItem *> &likes) = 0;

    // That follow one another in the view.
    virtual void removeShown(int place, int count) = 0;

    // Does what there is to do with rows while they are the view's last ones, side by side in
    // the order given.
    virtual void doAtEnd(const QList<ListItem *> &items, const std::function<void()> &act) = 0;

    // All by one place, up (-1) or down (1), in ascending order. Not while isOrdered.
    virtual void moveRows(const QList<int> &positions, int step) = 0;

    // What is told when a row has gone that the view does not have.
    virtual void setUnseenFollower(const std::function<void()> &follow) = 0;

    // Whether the view has other rows than all in their own order.
    virtual bool isOrdered() const = 0;

    // Which rows the view has, and in which order; without it all in their own. An orderer
    // tells it for rows that replace all others.
    using Order = std::optional<QList<int>>;
    virtual void show(const Order &positions) = 0;
    virtual void setOrderer(const std::function<Order()> &order) = 0;

    // How the header shows that rows are sorted by a column: from 1, below zero for
    // downwards, 0 for not at all.
    virtual void setSortRank(int column, int rank) = 0;

    // As wide as its header and its cells need; -1 for all columns.
    virtual void fitColumn(int column) = 0;

    // Whether the user holds a section or a divider of the header. False for a host's own
    // header, which keeps no room free either.
    virtual bool isHeaderHeld() const = 0;
    virtual bool hasHeaderRoom() const = 0;

    // Pixels that the header keeps free over its sections, and under them.
    virtual void setHeaderRoom(int above, int below) = 0;

    // Whether the first two columns stay in sight while others are scrolled sideways; by how
    // many pixels to the right a column is then seen, and which part of the viewport is theirs.
    virtual bool keepsColumns() const = 0;
    virtual void setKeepsColumns(bool on) = 0;
    virtual int shift(int column) const = 0;
    virtual QRect keptArea() const = 0;

    // The one that is seen at a place of the header, or -1.
    virtual int columnAt(int x) const = 0;

    // Whether the view may open an editor in a column, and tells screen readers so.
    virtual void setEdited(int column, bool edited) = 0;

    virtual bool selectsCells() const = 0;
    virtual void setSelectsCells(bool on) = 0;

    // What the program has selected is in the view's selection from then on.
    virtual void settle() = 0;
};

} // namespace ORVTListview
