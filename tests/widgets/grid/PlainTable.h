#pragma once

#include <ORVTListview/CellState.h>
#include <ORVTListview/ListGrid.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>

#include <array>
#include <functional>
#include <optional>

// A table as two dimensions of texts and states, what undoes its changes, and which rows are
// seen: what a grid is to be, in the plainest way. Column 0 is not edited, 1 is a text of at
// most four letters, 2 a number, 3 a choice. Rows have names that no other one gets.
class PlainTable
{
public:
    static constexpr int columns = 4;

    struct Row
    {
        int name;
        std::array<QString, columns> cells;
        std::array<ORVTListview::CellState, columns> states{};
        bool isHidden = false;
    };
    struct Cell
    {
        int row; // by name
        int column;
        QString former;
        QString text;
    };
    using Step = QList<Cell>;

    // All or nothing. The host is asked for what would change, and may change the table; it is
    // told afterwards what has.
    struct Host
    {
        std::function<void()> asked;
        std::function<void()> told;
    };
    void enter(const Step &wanted, const Host &host);
    void undo(const Host &host);
    void redo(const Host &host);
    void forget();

    // By the user or the host; a new row is empty.
    void insert(int position);
    void remove(int position);
    void replace(const QList<Row> &others, const QList<int> &columnsSeen);
    void move(const QList<int> &positions, int step);

    // Sorts and filters.
    bool isArranged() const { return !keys.isEmpty() || !filters.isEmpty(); }
    void arrange(const QList<int> &columnsSeen);

    Row *named(int name);
    int positionOf(int name) const;
    Row &seen(int place) { return *named(shown.at(place)); }
    const Row &rowNamed(int name) const { return rows.at(positionOf(name)); }

    QList<Row> rows;
    QList<int> shown; // by name
    ORVTListview::ListGrid::SortKeys keys;
    QMap<int, QString> filters;
    int nextName = 0;

private:
    Step write(const Step &step);
    bool passes(const Row &row, const QList<int> &columnsSeen) const;
    bool isBefore(int first, int second) const;

    QList<Step> m_done;
    QList<Step> m_undone;
};
