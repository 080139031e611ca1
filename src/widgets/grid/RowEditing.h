#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>

class QTableView;

namespace ORVTListview {

class CellEdit;
class CellNote;
class CellTable;
class GridSelection;
class ListItem;

// What users do with whole rows: the host is asked first and told afterwards, and may
// destroy the list in both.
class RowEditing
{
public:
    enum class Deed { Add, Remove, Duplicate, Move };

    struct Tools
    {
        QTableView &view;
        CellTable &table;
        GridSelection &selection;
        CellEdit &edit;
        CellNote &note;
    };

    // Ask is false when the list is gone. Rows are told by their Index, in ascending order.
    struct Host
    {
        std::function<bool(Deed, const QList<qint32> &, QString &)> ask;
        std::function<void(Deed, const QList<qint32> &)> tell;
    };

    explicit RowEditing(const Tools &tools)
        : m_tools(tools)
    {
    }
    Q_DISABLE_COPY_MOVE(RowEditing) // the part of a grid

    void setHost(const Host &host) { m_host = host; }

    bool isOn() const { return m_isOn; }
    void setOn(bool on) { m_isOn = on; }

    // False when it is refused or there is nothing to do.
    bool add();
    bool remove();
    bool duplicate();
    bool move(int step);

    // Whether the chosen rows can go up (-1) or down (1): not while they are sorted or
    // filtered, for then their order is another one.
    bool canMove(int step) const;
    bool hasRows() const { return !chosen().isEmpty(); }

private:
    QList<ListItem *> chosen() const;
    QList<int> positions(const QList<ListItem *> &items) const;
    bool isAllowed(Deed deed, const QList<ListItem *> &items);
    bool insert(Deed deed, QList<ListItem *> likes);
    void choose(const QList<ListItem *> &made);
    int seenColumn() const;
    void leave(const QList<ListItem *> &items);
    void take(QList<ListItem *> items);
    void takePieces(QList<ListItem *> items);
    QModelIndex stayingBeside(const QModelIndex &current, const QList<ListItem *> &items) const;
    bool fits(const QList<int> &places, int step) const;
    bool finish(Deed deed, const QList<int> &positions);

    Tools m_tools;
    Host m_host;
    bool m_isOn = false;
    bool m_isAsking = false;
};

} // namespace ORVTListview
