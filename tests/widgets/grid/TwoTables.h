#pragma once

#include "widgets/grid/PlainTable.h"
#include <ORVTListview/ReportList.h>

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtTest/QAbstractItemModelTester>

#include <array>
#include <optional>
#include <random>

// The same done to a list and to a plain table, by its user and its host. What deeds there
// are is told by GridDeeds.
class TwoTables : public QObject
{
    Q_OBJECT

public:
    explicit TwoTables(unsigned seed);

    void step();
    QString lastDeeds() const { return m_deeds.join(QStringLiteral(", ")); }

    // All that is seen, and the rows' order for the host.
    QString shown() const;
    QString expected() const;

    // What deeds are made of.
    int below(int bound) { return std::uniform_int_distribution(0, bound - 1)(m_random); }
    QString text();
    void say(const QString &more) { m_deeds.last() += QStringLiteral(" ") + more; }
    ORVTListview::ListItem *item(int position) const;

    // A block of cells that are seen, by their places, which is selected then.
    struct Block
    {
        QList<int> rows;
        QList<int> columns;
    };
    std::optional<Block> choose();
    PlainTable::Cell cell(int place, int column, const QString &text) const;
    QList<int> columnsSeen() const;

    // Enters into the plain table what was entered into the list.
    void enter(const PlainTable::Step &step);

    // What the host does while it is asked for texts, told of new ones or told of rows: to the
    // list, and to the plain table when that comes to the same place.
    PlainTable::Host host();
    void rowsWereEdited() { repeat(m_ofRows); }

    // By the host.
    void insertRow(int position);
    void replace(const QList<PlainTable::Row> &rows);
    static constexpr int usualRows = 12;

    ORVTListview::ReportList list;
    PlainTable plain;
    bool refusesRows = false;

private:
    struct Meddling
    {
        enum Deed { SetText, Insert, Remove, Arrange, Undo, Replace } deed;
        int position;
        int column;
        QString text;
    };
    struct Plan
    {
        std::optional<Meddling> wanted;
        bool isDone = false; // to the list
    };

    void plan(Plan &plan, int oneIn, Meddling::Deed last);
    void meddle(Plan &plan);
    void repeat(Plan &plan);
    void meddleWithList(const Meddling &wanted);
    void meddleWithPlain(const Meddling &wanted);
    void replaceInList(const QList<PlainTable::Row> &rows);
    void replaceInPlain(QList<PlainTable::Row> rows);
    void listenTo(ORVTListview::ListGrid &grid);
    void nameRows(const QList<qint32> &rows);

    std::mt19937 m_random;
    QStringList m_deeds;
    Plan m_whenAsked;
    Plan m_whenTold;
    Plan m_ofRows;
    int m_nextName = 0; // as the plain table counts
    QAbstractItemModelTester m_tester;
};
