#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QString>

namespace ORVTListview {

class ListItem;

// The rows and columns of a list as its grid sees them: a row is its handle, whatever
// place it has in the view, a column is counted from 0. This is the only way from a row to
// its place in the view and back.
class CellTable
{
public:
    CellTable() = default;
    virtual ~CellTable() = default;
    Q_DISABLE_COPY_MOVE(CellTable) // the part of a list

    // Null for no place.
    virtual ListItem *itemAt(const QModelIndex &place) const = 0;

    // Invalid when the row or the column is gone, or the row another list's.
    virtual QModelIndex placeOf(const ListItem *item, int column) const = 0;

    // Raises Error, named for the member that was called, for a row that is gone or another
    // list's.
    virtual void check(const ListItem *item, const QString &member) const = 0;

    // The row and the column are there.
    virtual QString text(const ListItem &item, int column) const = 0;
    virtual void setText(ListItem &item, int column, const QString &text) = 0;

    virtual int columns() const = 0;
    virtual QString columnKey(int column) const = 0;
    virtual QString columnText(int column) const = 0;

    // Whether the view may open an editor in a column, and tells screen readers so.
    virtual void setEdited(int column, bool edited) = 0;

    virtual bool selectsCells() const = 0;
    virtual void setSelectsCells(bool on) = 0;

    // What the program has selected is in the view's selection from then on.
    virtual void settle() = 0;
};

} // namespace ORVTListview
